// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <GenApi/INodeMap.h>
#include <GenApi/IValue.h>

#include <iosfwd>
#include <utility>
#include <vector>

namespace GENAPI_NAMESPACE {

class CFeatureBag;

/** Values of selectors, to be gone through and to be set again. */
class ORV_GENAPI_EXPORT CSelectorState
{
public:
    /** Both false when there is none any more. */
    bool SetFirst();
    bool SetNext();

    /** Adds a selector with the value it has now, or with any other. */
    void AddSelector(IValue &item);
    void AddSelector(GENICAM_NAMESPACE::gcstring name, GENICAM_NAMESPACE::gcstring value);

    /** Those of the current selector. */
    GENICAM_NAMESPACE::gcstring GetNodeName();
    GENICAM_NAMESPACE::gcstring GetNodeValue();
    bool operator==(const CSelectorState &other) const { return m_selectors == other.m_selectors; }
    bool IsEmpty() { return m_selectors.empty(); }

    /** Sets all selectors; false when one cannot be set, which \a pErrorList tells unless it is null. */
    bool RestoreState(INodeMap *pNodeMap, GENICAM_NAMESPACE::gcstring_vector *pErrorList = nullptr);

private:
    friend ORV_GENAPI_EXPORT std::ostream &operator<<(std::ostream &os, const CFeatureBag &FeatureBag);

    std::vector<std::pair<GENICAM_NAMESPACE::gcstring, GENICAM_NAMESPACE::gcstring>> m_selectors;
    size_t m_position = 0;
};

} // namespace GENAPI_NAMESPACE
