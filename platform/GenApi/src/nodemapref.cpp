#include <GenApi/NodeMapRef.h>

#include <OrvGenApi/nodemap.h>

namespace GENAPI_NAMESPACE {

using GENICAM_NAMESPACE::gcstring;

CNodeMapRef::CNodeMapRef(const gcstring &DeviceName)
    : m_deviceName(DeviceName)
{
}

CNodeMapRef::~CNodeMapRef() = default;

void CNodeMapRef::_LoadXMLFromFile(const gcstring &FileName)
{
    take(OrvGenApi::NodeMap::fromFile(FileName.c_str(), m_deviceName.c_str()));
}

void CNodeMapRef::_LoadXMLFromString(const gcstring &XMLData)
{
    take(OrvGenApi::NodeMap::fromString({XMLData.c_str(), XMLData.size()}, "description", m_deviceName.c_str()));
}

void CNodeMapRef::take(std::shared_ptr<INodeMap> map)
{
    if (m_map)
        throw GENICAM_NAMESPACE::RuntimeException("there is a node map already", __FILE__, __LINE__);
    m_map = std::move(map);
    _Ptr = m_map.get();
}

void CNodeMapRef::_Destroy()
{
    _Ptr = nullptr;
    m_map.reset();
}

INodeMap &CNodeMapRef::map() const
{
    if (!m_map)
        throw GENICAM_NAMESPACE::LogicalErrorException("no node map is loaded", __FILE__, __LINE__);
    return *m_map;
}

gcstring CNodeMapRef::_GetDeviceName() const
{
    return map().GetDeviceName();
}

void CNodeMapRef::_GetNodes(NodeList_t &Nodes) const
{
    map().GetNodes(Nodes);
}

INode *CNodeMapRef::_GetNode(const gcstring &key) const
{
    return map().GetNode(key);
}

void CNodeMapRef::_InvalidateNodes() const
{
    map().InvalidateNodes();
}

void CNodeMapRef::_Poll(int64_t ElapsedTime)
{
    map().Poll(ElapsedTime);
}

bool CNodeMapRef::_Connect(IPort *pPort, const gcstring &PortName) const
{
    return map().Connect(pPort, PortName);
}

bool CNodeMapRef::_Connect(IPort *pPort) const
{
    return map().Connect(pPort, "Device");
}

} // namespace GENAPI_NAMESPACE
