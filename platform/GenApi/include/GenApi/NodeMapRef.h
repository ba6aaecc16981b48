#pragma once

#include <GenApi/INodeMap.h>
#include <GenApi/Pointer.h>

#include <memory>

namespace GENAPI_NAMESPACE {

/** A node map loaded from a description. Copies share it; it goes with the last of them. */
class ORV_GENAPI_EXPORT CNodeMapRef
{
public:
    explicit CNodeMapRef(const GENICAM_NAMESPACE::gcstring &DeviceName = "Device");
    CNodeMapRef(const CNodeMapRef &) = default;
    CNodeMapRef &operator=(const CNodeMapRef &) = default;
    virtual ~CNodeMapRef();

    /** Both throw a GenICam::GenericException, also when there is a map already. */
    void _LoadXMLFromFile(const GENICAM_NAMESPACE::gcstring &FileName);
    void _LoadXMLFromString(const GENICAM_NAMESPACE::gcstring &XMLData);
    void _Destroy();

    // The map's operations; without a map they throw a LogicalErrorException.
    GENICAM_NAMESPACE::gcstring _GetDeviceName() const;
    void _GetNodes(NodeList_t &Nodes) const;
    INode *_GetNode(const GENICAM_NAMESPACE::gcstring &key) const;
    void _InvalidateNodes() const;
    void _Poll(int64_t ElapsedTime);
    bool _Connect(IPort *pPort, const GENICAM_NAMESPACE::gcstring &PortName) const;
    bool _Connect(IPort *pPort) const;

    INodeMap *_Ptr = nullptr; ///< the map; null before it is loaded

private:
    void take(std::shared_ptr<INodeMap> map);
    INodeMap &map() const;

    GENICAM_NAMESPACE::gcstring m_deviceName;
    std::shared_ptr<INodeMap> m_map;
};

} // namespace GENAPI_NAMESPACE
