// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <OrvCameraGuiApi/camera_api/param.h>

namespace OrvGenParam {

class EnumEntry;

/** An enumeration feature. */
class ORV_CAMERA_API Enum : public virtual Param
{
protected:
    ~Enum() override = default;

public:
    /** The number of entries, including those that cannot be chosen now; constant. */
    virtual std::int32_t GetEnumEntriesCount(OrvCamErr *err) = 0;

    /** The entry at \a index, from 0; null if the index is out of range. */
    virtual EnumEntry *GetEnumEntryByIndex(std::int32_t index, OrvCamErr *err) = 0;

    /** The integer value of the current entry. */
    virtual std::int64_t GetValue(OrvCamErr *err) = 0;

    /** The symbolic name of the current entry, UTF-8; valid until the next call of this function on this object. */
    virtual const char *GetValueStr(OrvCamErr *err) = 0;

    /** Chooses the entry by its integer value. */
    virtual OrvCamErr SetValue(std::int64_t value) = 0;

    /** Chooses the entry by its symbolic name, UTF-8; null is an invalid argument. */
    virtual OrvCamErr SetValueStr(const char *symbolic) = 0;
};

} // namespace OrvGenParam
