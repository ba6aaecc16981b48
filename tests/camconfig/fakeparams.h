// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <OrvCameraGuiApi/camera_api/orvgenparam.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <set>
#include <string>
#include <vector>

/** Parameters that answer what no well-behaved camera does, and that tell every write that reaches them. */
namespace FakeParams {

/** What all kinds have in common. A write that succeeds tells the sinks, as cameras do. */
class Fake : public virtual OrvGenParam::Param
{
public:
    std::int32_t GetType() override { return 0; }
    const char *GetName() override { return name; }
    bool IsAvailable() override { return available; }
    bool IsWritable() override { return writable; }
    bool IsReadable() override { return readable; }
    OrvCamErr RegisterEvent(OrvGenParam::ParamEventSink *sink) override
    {
        sinks.insert(sink);
        return OrvCamErr_Ok;
    }
    OrvCamErr UnregisterEvent(OrvGenParam::ParamEventSink *sink) override
    {
        sinks.erase(sink);
        return OrvCamErr_Ok;
    }

    void notify()
    {
        const std::set<OrvGenParam::ParamEventSink *> told = sinks;
        for (OrvGenParam::ParamEventSink *const sink : told)
            sink->OnParameterUpdate(this);
    }

    const char *name = "Feature";
    bool available = true;
    bool writable = true;
    bool readable = true;
    OrvCamErr answer = OrvCamErr_Ok; ///< of the next writes
    OrvCamErr readAnswer = OrvCamErr_Ok; ///< of the next reads of an integer
    std::function<void()> whileWriting;
    std::function<void()> afterWriting; ///< a value that is taken
    bool reports = true; ///< what was written
    std::set<OrvGenParam::ParamEventSink *> sinks;
    std::vector<std::int64_t> writes;

protected:
    ~Fake() = default;

    /** Takes the value unless the write is to fail; whatever happens while writing may destroy the caller. */
    template <typename Value>
    OrvCamErr take(Value &place, Value value)
    {
        writes.push_back(std::int64_t(value));
        if (whileWriting)
            whileWriting();
        if (answer == OrvCamErr_Ok) {
            place = value;
            if (afterWriting)
                afterWriting();
            if (reports)
                notify();
        }
        return answer;
    }
};

class Int : public OrvGenParam::Int, public Fake
{
public:
    std::int32_t GetType() override { return OrvGenParam::ParamTypeInt; }
    OrvCamErr SetValue(std::int64_t number) override { return take(value, number); }
    std::int64_t GetValue(OrvCamErr *err) override
    {
        if (err)
            *err = readAnswer;
        return readAnswer == OrvCamErr_Ok ? value : 0;
    }
    std::int64_t GetMin(OrvCamErr *) override { return min; }
    std::int64_t GetMax(OrvCamErr *) override { return max; }
    std::int64_t GetIncrement(OrvCamErr *) override { return increment; }

    std::int64_t value = 0;
    std::int64_t min = 0;
    std::int64_t max = 100;
    std::int64_t increment = 1;
};

class Boolean : public OrvGenParam::Boolean, public Fake
{
public:
    OrvCamErr SetValue(bool truth) override { return take(value, truth); }
    bool GetValue(OrvCamErr *) override { return value; }

    bool value = false;
};

class Command : public OrvGenParam::Command, public Fake
{
public:
    OrvCamErr Execute() override
    {
        int done = 0;
        return take(done, 1);
    }
};

class Entry : public OrvGenParam::EnumEntry, public Fake
{
public:
    Entry(const char *symbolic, std::int64_t number)
        : text(symbolic)
        , value(number)
    {
    }

    std::int64_t GetValue(OrvCamErr *) override { return value; }
    const char *GetValueStr(OrvCamErr *) override { return text; }

    const char *text;
    std::int64_t value;
};

class Enum : public OrvGenParam::Enum, public Fake
{
public:
    /** An entry without a text is null, as a camera may have it. */
    explicit Enum(const std::vector<std::pair<const char *, std::int64_t>> &texts)
    {
        for (const auto &[text, number] : texts)
            entries.push_back(text ? std::make_unique<Entry>(text, number) : nullptr);
    }

    std::int32_t GetType() override { return OrvGenParam::ParamTypeEnum; }
    std::int32_t GetEnumEntriesCount(OrvCamErr *) override { return std::int32_t(entries.size()); }
    OrvGenParam::EnumEntry *GetEnumEntryByIndex(std::int32_t index, OrvCamErr *) override
    {
        return index < 0 || std::size_t(index) >= entries.size() ? nullptr : entries[std::size_t(index)].get();
    }
    std::int64_t GetValue(OrvCamErr *) override { return value; }
    const char *GetValueStr(OrvCamErr *) override
    {
        for (const auto &entry : entries) {
            if (entry && entry->value == value)
                return entry->text;
        }
        return nullptr;
    }
    OrvCamErr SetValue(std::int64_t number) override { return take(value, number); }
    OrvCamErr SetValueStr(const char *symbolic) override
    {
        for (const auto &entry : entries) {
            if (entry && std::string(entry->text) == symbolic)
                return SetValue(entry->value);
        }
        writes.push_back(-1000); // no such entry
        return OrvCamErr_GenICamInvalidArgument;
    }

    std::vector<std::unique_ptr<Entry>> entries;
    std::int64_t value = 0;
};

} // namespace FakeParams
