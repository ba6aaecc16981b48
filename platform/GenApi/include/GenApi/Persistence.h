// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <GenApi/INodeMap.h>
#include <GenApi/SelectorState.h>

#include <iosfwd>
#include <vector>

/** What the first line of a file of features holds. */
#define GENAPI_PERSISTENCE_MAGIC "{05D8C294-F295-4dfb-9D01-096BD04049F4}"

namespace GENAPI_NAMESPACE {

/**
 * The values of a device's streamable features, each selected one once for every value of its selectors: to be taken
 * from a node map, written to a stream, read from one and given to a node map.
 */
class ORV_GENAPI_EXPORT CFeatureBag
{
public:
    CFeatureBag() = default;
    CFeatureBag(const CFeatureBag &) = default;
    CFeatureBag &operator=(const CFeatureBag &) = default;
    virtual ~CFeatureBag();

    /** The text for people at the head of the stream. */
    virtual void SetInfo(const GENICAM_NAMESPACE::gcstring &Info) { m_info = Info; }
    virtual const GENICAM_NAMESPACE::gcstring &GetBagName() const { return m_name; }
    virtual void SetBagName(const GENICAM_NAMESPACE::gcstring &bagName) { m_name = bagName; }

    /**
     * Adds the features that are streamable and can be read and written, or those of them that \a pFeatureFilter names
     * with their selectors, \a MaxNumPersistSkriptEntries entries at most unless that is negative; returns how many.
     * Sets selectors on its way and puts them back.
     */
    int64_t StoreToBag(INodeMap *pNodeMap, const int MaxNumPersistSkriptEntries = -1,
                       GENICAM_NAMESPACE::gcstring_vector *pFeatureFilter = nullptr);

    /**
     * Writes all entries in their order, and then reads them again if \a Verify. One that cannot be written, or has
     * another value afterwards, does not hold back the others: it is told in \a pErrorList, unless that is null, and
     * the result is false.
     */
    bool LoadFromBag(INodeMap *pNodeMap, bool Verify = true, GENICAM_NAMESPACE::gcstring_vector *pErrorList = nullptr);

    bool operator==(const CFeatureBag &FeatureBag) const;
    GENICAM_NAMESPACE::gcstring ToString();
    virtual void Destroy() { m_entries.clear(); }

    /** Throws a RuntimeException for a stream that holds no features, or half of one. */
    friend ORV_GENAPI_EXPORT std::istream &operator>>(std::istream &is, CFeatureBag &FeatureBag);
    friend ORV_GENAPI_EXPORT std::ostream &operator<<(std::ostream &os, const CFeatureBag &FeatureBag);

private:
    friend class BagFiller;

    struct Entry;
    static bool isKept(INodeMap &map, const Entry &entry, GENICAM_NAMESPACE::gcstring_vector *errors);

    struct Entry
    {
        GENICAM_NAMESPACE::gcstring name;
        GENICAM_NAMESPACE::gcstring value;
        CSelectorState selectors;
    };

    std::vector<Entry> m_entries;
    GENICAM_NAMESPACE::gcstring m_info;
    GENICAM_NAMESPACE::gcstring m_name;
};

} // namespace GENAPI_NAMESPACE
