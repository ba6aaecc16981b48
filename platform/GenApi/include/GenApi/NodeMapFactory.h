// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <Base/GCString.h>
#include <Base/GCStringVector.h>
#include <GenApi/INodeMap.h>

#include <memory>

namespace GENAPI_NAMESPACE {

/** Whether prepared descriptions are kept in files; here they never are. */
enum ECacheUsage_t { CacheUsage_Automatic, CacheUsage_ForceWrite, CacheUsage_ForceRead, CacheUsage_Ignore };

enum EContentType_t {
    ContentType_Xml,
    ContentType_ZippedXml ///< an archive; its first file that ends in ".xml" is meant, or else its first
};

/**
 * Makes node maps of one description, into which others may be injected before. Copies are the same factory.
 *
 * What is injected adds its nodes, and the features of its categories to those of the same name. Any other node that is
 * there already throws a RuntimeException, unless the attribute MergePriority of one of the two is greater: that one
 * stays.
 */
class ORV_GENAPI_EXPORT CNodeMapFactory
{
public:
    CNodeMapFactory();

    /** The description is read when it is needed; a file that cannot be read throws a RuntimeException then. */
    CNodeMapFactory(EContentType_t FileType, const GENICAM_NAMESPACE::gcstring &FileName,
                    ECacheUsage_t CacheUsage = CacheUsage_Automatic, bool SuppressStringsOnLoad = false);
    CNodeMapFactory(EContentType_t ContentType, const void *pData, size_t DataSize,
                    ECacheUsage_t CacheUsage = CacheUsage_Automatic, bool SuppressStringsOnLoad = false);
    CNodeMapFactory(const GENICAM_NAMESPACE::gcstring &XmlData, ECacheUsage_t CacheUsage = CacheUsage_Automatic,
                    bool SuppressStringsOnLoad = false);
    CNodeMapFactory(const CNodeMapFactory &) = default;
    CNodeMapFactory &operator=(const CNodeMapFactory &) = default;
    virtual ~CNodeMapFactory();

    /** Whether there is no description. */
    bool IsEmpty() const;
    void AddInjectionData(CNodeMapFactory &injectionData);

    // The steps of CreateNodeMap(), which does those that have not been done.
    void LoadAndInject();
    bool IsLoaded() const;
    void Preprocess();
    bool IsPreprocessed() const;

    /** Forgets the description's source where nothing needs it any more. */
    void ReleaseCameraDescriptionFileData();
    bool IsCameraDescriptionFileDataReleased() const;

    /** A new node map, to be destroyed by its IDestroy or given to a CNodeMapRef. */
    INodeMap *CreateNodeMap(const GENICAM_NAMESPACE::gcstring &DeviceName = "Device",
                            bool DoReleaseCameraDescriptionFileData = true);

    /** The same with a lock that several maps may share; it outlives them. */
    INodeMap *CreateNodeMap(CLock &UserProvidedLock, const GENICAM_NAMESPACE::gcstring &DeviceName = "Device",
                            bool DoReleaseCameraDescriptionFileData = true);

    /** A node map without nodes. */
    static INodeMap *CreateEmptyNodeMap();

    /** Forgets what is kept in files; true, because nothing ever is. */
    static bool ClearCache() { return true; }

    /** "1.0" and "1.1". */
    void GetSupportedSchemaVersions(GENICAM_NAMESPACE::gcstring_vector &SchemaVersions) const;

private:
    class Description;

    INodeMap *create(CLock *lock, const GENICAM_NAMESPACE::gcstring &deviceName, bool release);

    std::shared_ptr<Description> m_description;
};

} // namespace GENAPI_NAMESPACE
