// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <GenApi/IDestroy.h>
#include <GenApi/INodeMap.h>
#include <GenApi/NodeMapFactory.h>
#include <GenApi/Pointer.h>

#include <memory>

namespace GENAPI_NAMESPACE {

/** How \a pNodeMap is destroyed. */
inline IDestroy *CastToIDestroy(INodeMap *pNodeMap)
{
    return dynamic_cast<IDestroy *>(pNodeMap);
}

/**
 * A node map. Copies share it; it goes with the last of them.
 *
 * \a TCameraParams is a base with references to the features of a kind of camera, as members; its _Initialize() is
 * given every map that is loaded or taken over, and connects them. Without a map all operations throw an
 * AccessException.
 */
template <class TCameraParams>
class CNodeMapRefT : public TCameraParams
{
    using gcstring = GENICAM_NAMESPACE::gcstring;

public:
    explicit CNodeMapRefT(const gcstring &DeviceName = "Device")
        : m_deviceName(DeviceName)
    {
    }

    /** Takes ownership. */
    CNodeMapRefT(INodeMap *pNodeMap, const gcstring &DeviceName = "Device")
        : m_deviceName(DeviceName)
    {
        take(pNodeMap);
    }
    CNodeMapRefT(const CNodeMapRefT &Them)
        : TCameraParams()
    {
        share(Them);
    }
    CNodeMapRefT &operator=(const CNodeMapRefT &Them)
    {
        if (&Them != this)
            share(Them);
        return *this;
    }
    CNodeMapRefT &operator=(INodeMap *pNodeMap)
    {
        _Destroy();
        take(pNodeMap);
        return *this;
    }
    virtual ~CNodeMapRefT() = default; // NOLINT(modernize-use-override): the base of a generated class may have none

    /** Lets go of the map. */
    void _Destroy()
    {
        _Ptr = nullptr;
        m_map.reset();
    }

    // All that load throw a GenICam::GenericException when the description cannot be used or there is a map already.
    void _LoadXMLFromFile(const gcstring &FileName) { load(CNodeMapFactory(ContentType_Xml, FileName), m_deviceName); }
    void _LoadXMLFromString(const gcstring &XMLData)
    {
        load(CNodeMapFactory(ContentType_Xml, XMLData.c_str(), XMLData.size()), m_deviceName);
    }
    void _LoadXMLFromFileInject(const gcstring &TargetFileName, const gcstring &InjectFileName)
    {
        CNodeMapFactory injected(ContentType_Xml, InjectFileName);
        load(CNodeMapFactory(ContentType_Xml, TargetFileName), m_deviceName, &injected);
    }

    // Intentionally, as in the reference implementation: maps that are loaded so are those of a device named "Device".
    void _LoadXMLFromZIPFile(const gcstring &ZipFileName)
    {
        load(CNodeMapFactory(ContentType_ZippedXml, ZipFileName), "Device");
    }
    void _LoadXMLFromZIPData(const void *zipData, size_t zipSize)
    {
        load(CNodeMapFactory(ContentType_ZippedXml, zipData, zipSize), "Device");
    }
    void _LoadXMLFromStringInject(const gcstring &TargetXMLData, const gcstring &InjectXMLData)
    {
        CNodeMapFactory injected(ContentType_Xml, InjectXMLData.c_str(), InjectXMLData.size());
        load(CNodeMapFactory(ContentType_Xml, TargetXMLData.c_str(), TargetXMLData.size()), "Device", &injected);
    }

    virtual void _GetSupportedSchemaVersions(GENICAM_NAMESPACE::gcstring_vector &SchemaVersions) const
    {
        CNodeMapFactory().GetSupportedSchemaVersions(SchemaVersions);
    }
    static bool _ClearXMLCache() { return CNodeMapFactory::ClearCache(); }

    // The map's operations.
    virtual gcstring _GetDeviceName() const { return map().GetDeviceName(); }
    virtual void _GetNodes(NodeList_t &Nodes) const { map().GetNodes(Nodes); }
    virtual INode *_GetNode(const gcstring &key) const { return map().GetNode(key); }
    virtual void _InvalidateNodes() const { map().InvalidateNodes(); }
    virtual void _Poll(int64_t ElapsedTime) { map().Poll(ElapsedTime); }
    virtual bool _Connect(IPort *pPort, const gcstring &PortName) const { return map().Connect(pPort, PortName); }
    virtual bool _Connect(IPort *pPort) const { return map().Connect(pPort); }
    virtual bool _Connect(IPortStacked *pPort, const gcstring &PortName) const
    {
        return map().Connect(pPort, PortName);
    }
    virtual bool _Connect(IPortStacked *pPort) const { return map().Connect(pPort); }
    virtual bool _ParseSwissKnifes(GENICAM_NAMESPACE::gcstring_vector *pErrorList = nullptr) const
    {
        return map().ParseSwissKnifes(pErrorList);
    }
    virtual CNodeWriteConcatenator *_NewNodeWriteConcatenator() const { return map().NewNodeWriteConcatenator(); }
    virtual bool _ConcatenatedWrite(CNodeWriteConcatenator *pConcatenatedWrite, bool featureStreaming = true,
                                    GENICAM_NAMESPACE::gcstring_vector *pErrorList = nullptr)
    {
        return map().ConcatenatedWrite(pConcatenatedWrite, featureStreaming, pErrorList);
    }
    virtual void _SetSuppressCallbackMode(ECallbackSuppressMode mode) const { map().SetSuppressCallbackMode(mode); }

    INodeMap *_Ptr = nullptr; ///< the map; null before there is one

private:
    void load(CNodeMapFactory factory, const gcstring &deviceName, CNodeMapFactory *injected = nullptr)
    {
        if (_Ptr)
            throw RUNTIME_EXCEPTION("there is a node map already");
        if (injected)
            factory.AddInjectionData(*injected);
        take(factory.CreateNodeMap(deviceName));
    }

    void take(INodeMap *pNodeMap)
    {
        if (!pNodeMap)
            return;
        m_map.reset(pNodeMap, [](INodeMap *map) {
            if (IDestroy *const destroyer = CastToIDestroy(map))
                destroyer->Destroy();
        });
        _Ptr = pNodeMap;
        TCameraParams::_Initialize(_Ptr);
    }

    void share(const CNodeMapRefT &other)
    {
        m_deviceName = other.m_deviceName;
        m_map = other.m_map;
        _Ptr = m_map.get();
        if (_Ptr)
            TCameraParams::_Initialize(_Ptr);
    }

    INodeMap &map() const
    {
        if (!_Ptr)
            throw ACCESS_EXCEPTION("no node map is loaded");
        return *_Ptr;
    }

    gcstring m_deviceName;
    std::shared_ptr<INodeMap> m_map;
};

/** Base for those who have no references to features. */
class CGeneric_XMLLoaderParams
{
protected:
    virtual void _Initialize(INodeMap *) { }
    virtual ~CGeneric_XMLLoaderParams() = default;
};

class CNodeMapRef : public CNodeMapRefT<CGeneric_XMLLoaderParams>
{
public:
    using CNodeMapRefT::CNodeMapRefT;
    CNodeMapRef(const GENICAM_NAMESPACE::gcstring &DeviceName = "Device")
        : CNodeMapRefT(DeviceName)
    {
    }
    CNodeMapRef &operator=(INodeMap *pNodeMap)
    {
        CNodeMapRefT::operator=(pNodeMap);
        return *this;
    }
};

} // namespace GENAPI_NAMESPACE
