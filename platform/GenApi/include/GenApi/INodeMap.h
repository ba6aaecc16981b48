#pragma once

#include <GenApi/Container.h>
#include <GenApi/INode.h>
#include <GenApi/IPort.h>
#include <GenApi/Synch.h>
#include <GenApi/Types.h>

namespace GENAPI_NAMESPACE {

/**
 * All nodes of one device description. Nodes belong to the map. Every operation of a map and of its nodes takes the
 * map's one recursive lock, so that a map may be used from several threads.
 */
struct ORV_GENAPI_EXPORT INodeMap
{
    /** All nodes, in no particular order. */
    virtual void GetNodes(NodeList_t &Nodes) const = 0;

    /** The node with that name, which may carry its name space in front; null when there is none. */
    virtual INode *GetNode(const GENICAM_NAMESPACE::gcstring &Name) const = 0;

    /** Drops all kept values; the next reads go to the device. */
    virtual void InvalidateNodes() const = 0;
    virtual GENICAM_NAMESPACE::gcstring GetDeviceName() = 0;

    /**
     * Registers behind the port node \a PortName read and write through \a pPort, which outlives the map or is replaced
     * (null disconnects). False when there is no such node.
     */
    virtual bool Connect(IPort *pPort, const GENICAM_NAMESPACE::gcstring &PortName) const = 0;
    bool Connect(IPort *pPort) const { return Connect(pPort, "Device"); }

    /**
     * Adds \a ElapsedTime milliseconds to every polled node's clock. A node whose clock reaches its polling time is
     * invalidated, with all that depends on it, and their callbacks are called, whether the value changed or not.
     */
    virtual void Poll(int64_t ElapsedTime) = 0;
    virtual CLock &GetLock() const = 0;
    virtual uint64_t GetNumNodes() const = 0;

protected:
    ~INodeMap() = default;
};

} // namespace GENAPI_NAMESPACE
