// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <GenApi/ConcatenatedWrite.h>
#include <GenApi/Container.h>
#include <GenApi/INode.h>
#include <GenApi/IPort.h>
#include <GenApi/IPortStacked.h>
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
     * (null disconnects). False when there is no such node. A port that can write several registers at once is asked to
     * by ConcatenatedWrite().
     */
    virtual bool Connect(IPort *pPort, const GENICAM_NAMESPACE::gcstring &PortName) const = 0;
    virtual bool Connect(IPort *pPort) const = 0;
    virtual bool Connect(IPortStacked *pPort, const GENICAM_NAMESPACE::gcstring &PortName) = 0;
    virtual bool Connect(IPortStacked *pPort) = 0;

    /**
     * Adds \a ElapsedTime milliseconds to every polled node's clock. A node whose clock reaches its polling time is
     * invalidated, with all that depends on it, and their callbacks are called, whether the value changed or not.
     */
    virtual void Poll(int64_t ElapsedTime) = 0;
    virtual CLock &GetLock() const = 0;
    virtual uint64_t GetNumNodes() const = 0;

    /** Whether all formulas can be used; tells in \a pErrorList, unless it is null, which cannot and why. */
    virtual bool ParseSwissKnifes(GENICAM_NAMESPACE::gcstring_vector *pErrorList = nullptr) const = 0;

    /** A new list of values to write, to be destroyed by its Destroy(). */
    virtual CNodeWriteConcatenator *NewNodeWriteConcatenator() const = 0;

    /**
     * Writes all values of the list, through a stacked port in one access. A value that cannot be written does not hold
     * back the others: it is told in \a pErrorList, unless that is null, and the result is false. Names that the map
     * does not have are passed over. \a featureStreaming changes nothing.
     */
    virtual bool ConcatenatedWrite(CNodeWriteConcatenator *pConcatenatedWrite, bool featureStreaming = true,
                                   GENICAM_NAMESPACE::gcstring_vector *pErrorList = nullptr) = 0;
    virtual void SetSuppressCallbackMode(ECallbackSuppressMode mode) = 0;

protected:
    ~INodeMap() = default;
};

} // namespace GENAPI_NAMESPACE
