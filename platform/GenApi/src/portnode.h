// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include "nodemapimpl.h"

#include <GenApi/IChunkPort.h>
#include <GenApi/IPortConstruct.h>
#include <GenApi/IPortRecorder.h>
#include <GenApi/IPortStacked.h>

#include <optional>

namespace OrvGenApi {

/** Passes reads and writes on to the port that is connected. */
class PortNode final : public Node,
                       public GenApi::IPortRecorder,
                       public GenApi::IPortConstruct,
                       public GenApi::IPortStackedConstruct,
                       public GenApi::IChunkPort
{
public:
    using Node::Node;

    void Read(void *pBuffer, int64_t Address, int64_t Length) override;
    void Write(const void *pBuffer, int64_t Address, int64_t Length) override;

    // IPortRecorder
    void Replay(GenApi::IPortWriteList *pPortRecorder, bool Invalidate) override;
    void StartRecording(GenApi::IPortWriteList *pPortRecorder) override;
    void StopRecording() override { StartRecording(nullptr); }

    // IPortConstruct and IPortStackedConstruct
    void SetPortImpl(GenApi::IPort *pPort) override { map().connect(pPort, name()); }
    void SetPortImpl(GenApi::IPortStacked *pPort) override { map().connect(pPort, name()); }
    GenApi::EYesNo GetSwapEndianess() override { return m_swapEndianness ? GenApi::Yes : GenApi::No; }

    // IChunkPort
    GenICam::gcstring GetChunkID() const override { return property("ChunkID"); }
    GenApi::EYesNo CacheChunkData() const override
    {
        return property("CacheChunkData") == "Yes" ? GenApi::Yes : GenApi::No;
    }

    GenApi::EInterfaceType interfaceType() const override { return GenApi::intfIPort; }

    /** Tells \a port, where it wants to know, that it belongs to this node. */
    void connect(GenApi::IPort *port);
    bool isConnected() const { return m_port; }

    /** From now on writes wait for the end of the stack, if the port can do several at once. */
    void beginStack();

    /** Does the writes that wait in one access. */
    void endStack();

    /** Whether registers behind this port have their bytes the other way round. */
    bool swapsEndianness() const { return m_swapEndianness; }

    void read(void *buffer, int64_t address, int64_t length);
    void write(const void *buffer, int64_t address, int64_t length);

    /** A range of bytes on the device. */
    struct Range
    {
        int64_t address;
        int64_t length;

        bool operator==(const Range &other) const { return address == other.address && length == other.length; }
    };

    using Kept = std::optional<std::string>; ///< the bytes that were read or written last, if they are known
    using KeptRange = std::pair<const Range, Kept>;

    /**
     * Registers at the same range share what is kept; ranges that only overlap do not look at each other. The object
     * stays where it is as long as keptEpoch() is the same.
     */
    KeptRange &kept(const Range &range);
    uint64_t keptEpoch() const { return m_keptEpoch; }

    /** Drops what is kept of \a range, if anything is. */
    void drop(const Range &range);

protected:
    GenApi::EAccessMode firstAccess() const override { return GenApi::RW; }
    GenApi::EAccessMode valueAccess() const override;
    GenApi::EAccessMode endAccess() const override { return valueAccess(); }
    bool dependsOnPort() const override { return true; }

private:
    friend class DescriptionLoader;

    template <typename Deed>
    void guarded(const char *what, const Deed &deed) const;
    GenApi::IPort *connected() const;
    GenICam::gcstring property(const char *name) const;
    void writeStack();

    struct StackedWrite
    {
        int64_t address;
        std::string bytes;
    };

    struct RangeHash
    {
        std::size_t operator()(const Range &range) const
        {
            return std::hash<uint64_t>()(static_cast<uint64_t>(range.address) * 31
                                         + static_cast<uint64_t>(range.length));
        }
    };

    void clearKept();

    std::unordered_map<Range, Kept, RangeHash> m_kept;
    uint64_t m_keptEpoch = 1;
    GenApi::IPort *m_port = nullptr;
    GenApi::IPortWriteList *m_recorder = nullptr;
    std::optional<std::vector<StackedWrite>> m_stack; ///< there while writes are collected
    bool m_swapEndianness = false;
    bool m_isChunk = false; ///< for data that come with an image
};

} // namespace OrvGenApi
