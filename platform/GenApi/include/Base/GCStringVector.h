// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <Base/GCString.h>

#include <algorithm>
#include <vector>

namespace GENICAM_NAMESPACE {

/** A list of texts. */
class ORV_GENAPI_EXPORT gcstring_vector : public std::vector<gcstring>
{
public:
    using vector::assign;
    using vector::erase;
    using vector::insert;
    using vector::vector;

    bool contains(const gcstring &str) const { return std::find(begin(), end(), str) != end(); }

    gcstring_vector &assign(const gcstring_vector &obj) { return *this = obj; }
    void erase(std::size_t uiIndex) { erase(begin() + static_cast<std::ptrdiff_t>(uiIndex)); }
    void insert(std::size_t uiIndex, const gcstring &str)
    {
        insert(begin() + static_cast<std::ptrdiff_t>(uiIndex), str);
    }
};

} // namespace GENICAM_NAMESPACE
