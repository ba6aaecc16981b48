// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <GenApi/NodeMapFactory.h>

#include "nodemapimpl.h"
#include <OrvGenApi/ziparchive.h>

#include <pugixml.hpp>

#include <cstring>
#include <sstream>
#include <unordered_map>

namespace GENAPI_NAMESPACE {

using GENICAM_NAMESPACE::gcstring;

namespace {

using Element = pugi::xml_node;

pugi::xml_document parsed(const std::string &xml, const std::string &sourceName)
{
    pugi::xml_document document;
    const pugi::xml_parse_result result = document.load_buffer(xml.data(), xml.size());
    if (!result || std::strcmp(document.document_element().name(), "RegisterDescription") != 0)
        ORV_THROW(RuntimeException, sourceName + ": no GenICam description");
    return document;
}

/** Calls \a visit with all elements of nodes, those in groups as well. */
template <typename Visit>
void forEachNode(const Element &parent, const Visit &visit, int depth = 0)
{
    for (Element element = parent.first_child(), next; element; element = next) {
        next = element.next_sibling(); // the element may be taken away
        if (std::strcmp(element.name(), "Group") == 0 && depth < 100)
            forEachNode(element, visit, depth + 1);
        else if (element.type() == pugi::node_element)
            visit(element);
    }
}

void mergeNode(Element &existing, const Element &injected)
{
    const int difference = injected.attribute("MergePriority").as_int() - existing.attribute("MergePriority").as_int();
    if (difference > 0) {
        const Element replaced = existing;
        existing = existing.parent().insert_copy_after(injected, existing);
        existing.parent().remove_child(replaced);
    } else if (difference == 0) {
        if (std::strcmp(existing.name(), "Category") != 0 || std::strcmp(injected.name(), "Category") != 0) {
            ORV_THROW(RuntimeException,
                      std::string("a node '") + injected.attribute("Name").value() + "' is there already");
        }
        for (const Element &feature : injected.children("pFeature"))
            existing.append_copy(feature);
    }
}

void merge(Element target, const Element &injected)
{
    std::unordered_map<std::string, Element> nodes;
    forEachNode(target, [&](const Element &node) { nodes.emplace(node.attribute("Name").value(), node); });
    forEachNode(injected, [&](const Element &node) {
        const std::string name = node.attribute("Name").value();
        const auto known = nodes.find(name);
        if (known == nodes.end() || name.empty())
            target.append_copy(node);
        else
            mergeNode(known->second, node);
    });
}

} // namespace

class CNodeMapFactory::Description
{
public:
    EContentType_t type = ContentType_Xml;
    std::string fileName; ///< empty where the content has been given
    std::string content; ///< XML once it is loaded
    std::string sourceName = "description";
    std::vector<std::shared_ptr<Description>> injected;
    bool isEmpty = true;
    bool isLoaded = false;
    bool isPreprocessed = false;
    bool isReleased = false;

    void load();
};

void CNodeMapFactory::Description::load()
{
    if (isLoaded)
        return;
    if (isEmpty)
        ORV_THROW(LogicalErrorException, "the factory has no description");
    std::string xml = fileName.empty() ? content : OrvGenApi::contentOf(fileName);
    if (type == ContentType_ZippedXml)
        xml = OrvGenApi::descriptionInZip(xml, sourceName);
    if (!injected.empty()) {
        pugi::xml_document document = parsed(xml, sourceName);
        for (const std::shared_ptr<Description> &each : injected) {
            each->load();
            merge(document.document_element(), parsed(each->content, each->sourceName).document_element());
        }
        std::ostringstream merged;
        document.save(merged);
        xml = merged.str();
    }
    content = std::move(xml);
    isLoaded = true;
}

CNodeMapFactory::CNodeMapFactory()
    : m_description(std::make_shared<Description>())
{
}

CNodeMapFactory::CNodeMapFactory(EContentType_t FileType, const gcstring &FileName, ECacheUsage_t, bool)
    : CNodeMapFactory()
{
    m_description->type = FileType;
    m_description->fileName = m_description->sourceName = FileName.c_str();
    m_description->isEmpty = FileName.empty();
}

CNodeMapFactory::CNodeMapFactory(EContentType_t ContentType, const void *pData, size_t DataSize, ECacheUsage_t, bool)
    : CNodeMapFactory()
{
    if (!pData && DataSize > 0)
        ORV_THROW(InvalidArgumentException, "there is no description at a null pointer");
    m_description->type = ContentType;
    m_description->content.assign(static_cast<const char *>(pData), DataSize);
    m_description->isEmpty = false;
}

CNodeMapFactory::CNodeMapFactory(const gcstring &XmlData, ECacheUsage_t CacheUsage, bool SuppressStringsOnLoad)
    : CNodeMapFactory(ContentType_Xml, XmlData.c_str(), XmlData.size(), CacheUsage, SuppressStringsOnLoad)
{
}

CNodeMapFactory::~CNodeMapFactory() = default;

bool CNodeMapFactory::IsEmpty() const
{
    return m_description->isEmpty;
}

void CNodeMapFactory::AddInjectionData(CNodeMapFactory &injectionData)
{
    if (m_description->isLoaded || injectionData.m_description == m_description)
        ORV_THROW(LogicalErrorException, "it is too late to inject a description, or it is the same one");
    m_description->injected.push_back(injectionData.m_description);
}

void CNodeMapFactory::LoadAndInject()
{
    m_description->load();
}

bool CNodeMapFactory::IsLoaded() const
{
    return m_description->isLoaded;
}

void CNodeMapFactory::Preprocess()
{
    m_description->load();
    m_description->isPreprocessed = true;
}

bool CNodeMapFactory::IsPreprocessed() const
{
    return m_description->isPreprocessed;
}

void CNodeMapFactory::ReleaseCameraDescriptionFileData()
{
    m_description->isReleased = true; // the text itself is what further node maps are made of
}

bool CNodeMapFactory::IsCameraDescriptionFileDataReleased() const
{
    return m_description->isReleased;
}

INodeMap *CNodeMapFactory::CreateNodeMap(const gcstring &DeviceName, bool DoReleaseCameraDescriptionFileData)
{
    return create(nullptr, DeviceName, DoReleaseCameraDescriptionFileData);
}

INodeMap *CNodeMapFactory::CreateNodeMap(CLock &UserProvidedLock, const gcstring &DeviceName,
                                         bool DoReleaseCameraDescriptionFileData)
{
    return create(&UserProvidedLock, DeviceName, DoReleaseCameraDescriptionFileData);
}

INodeMap *CNodeMapFactory::create(CLock *lock, const gcstring &deviceName, bool release)
{
    Preprocess();
    auto map =
        OrvGenApi::NodeMapImpl::load(m_description->content, m_description->sourceName, deviceName.c_str(), lock);
    if (release)
        ReleaseCameraDescriptionFileData();
    return map.release();
}

INodeMap *CNodeMapFactory::CreateEmptyNodeMap()
{
    return OrvGenApi::NodeMapImpl::load("<RegisterDescription/>", "description", "Device").release();
}

void CNodeMapFactory::GetSupportedSchemaVersions(GENICAM_NAMESPACE::gcstring_vector &SchemaVersions) const
{
    for (const char *version : {"1.0", "1.1"})
        SchemaVersions.push_back(version);
}

} // namespace GENAPI_NAMESPACE
