#pragma once

#include <GenApi/IBase.h>
#include <GenApi/Types.h>

namespace GENAPI_NAMESPACE {

class CNodeCallback;
struct INodeMap;

/** What all nodes have besides their values. Texts are UTF-8.

    Derived properties - access, caching mode, streamability - follow the nodes that a node reads. */
struct ORV_GENAPI_EXPORT INode : virtual public IBase
{
    /** The name, in front of it the name space when \a FullQualified. */
    virtual GENICAM_NAMESPACE::gcstring GetName(bool FullQualified = false) const = 0;
    virtual EVisibility GetVisibility() const = 0;
    virtual void InvalidateNode() = 0;
    virtual ECachingMode GetCachingMode() const = 0;

    /** Milliseconds between two polls; -1 when the node is not polled. */
    virtual int64_t GetPollingTime() const = 0;
    virtual GENICAM_NAMESPACE::gcstring GetToolTip() const = 0;
    virtual GENICAM_NAMESPACE::gcstring GetDescription() const = 0;

    /** The name for people; the node's name where the description gives none. */
    virtual GENICAM_NAMESPACE::gcstring GetDisplayName() const = 0;
    virtual GENICAM_NAMESPACE::gcstring GetDeviceName() const = 0;
    virtual INodeMap *GetNodeMap() const = 0;
    virtual EInterfaceType GetPrincipalInterfaceType() const = 0;

    /** Whether the value belongs to a stored set of settings. */
    virtual bool IsStreamable() const = 0;

    /** Whether the node is reached from the category "Root". */
    virtual bool IsFeature() const = 0;

    /** Takes ownership of \a pCallback; it is destroyed when it is deregistered or the node map goes. */
    virtual CallbackHandleType RegisterCallback(CNodeCallback *pCallback) = 0;

    /** Removes and destroys a callback; false when this node has no such one. */
    virtual bool DeregisterCallback(CallbackHandleType hCallback) = 0;

protected:
    ~INode() = default;
};

} // namespace GENAPI_NAMESPACE
