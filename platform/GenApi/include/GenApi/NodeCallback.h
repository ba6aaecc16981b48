#pragma once

#include <GenApi/INode.h>
#include <GenApi/Types.h>

namespace GENAPI_NAMESPACE {

/** Called when a node, or something that it depends on, has changed. Belongs to the node that it is registered on. */
class ORV_GENAPI_EXPORT CNodeCallback
{
public:
    CNodeCallback(INode *pNode, ECallbackType CallbackType)
        : m_node(pNode)
        , m_type(CallbackType)
    {
    }
    virtual ~CNodeCallback() = default;
    CNodeCallback(const CNodeCallback &) = delete;
    CNodeCallback &operator=(const CNodeCallback &) = delete;

    /** Called for both moments; acts in the one the callback was made for. */
    virtual void operator()(ECallbackType CallbackType) const = 0;
    virtual void Destroy() = 0;

    INode *GetNode() { return m_node; }

protected:
    INode *const m_node;
    const ECallbackType m_type;

private:
    friend class CallbackList;

    CNodeCallback *m_next = nullptr; ///< the node's next callback
};

/** Calls a function with the node, unless the function is null: what is given can be asked for that, as pointers can.
 */
template <typename Function>
class FunctionNodeCallback : public CNodeCallback
{
public:
    FunctionNodeCallback(INode *pNode, const Function &Func, ECallbackType CallbackType)
        : CNodeCallback(pNode, CallbackType)
        , m_function(Func)
    {
    }

    void operator()(ECallbackType CallbackType) const override
    {
        if (m_function && CallbackType == m_type)
            m_function(m_node);
    }

    void Destroy() override { delete this; }

private:
    const Function m_function;
};

/** Calls a member function with the node; the client outlives the registration. */
template <typename Client, typename Member>
class MemberNodeCallback : public CNodeCallback
{
public:
    MemberNodeCallback(INode *pNode, Client *pClient, Member pMember, ECallbackType CallbackType)
        : CNodeCallback(pNode, CallbackType)
        , m_client(pClient)
        , m_member(pMember)
    {
    }

    void operator()(ECallbackType CallbackType) const override
    {
        if (CallbackType == m_type)
            (m_client->*m_member)(m_node);
    }

    void Destroy() override { delete this; }

private:
    Client *const m_client;
    const Member m_member;
};

/** Calls \a Func(INode *) on every change of \a pNode until the handle is deregistered. */
template <typename Function>
CallbackHandleType Register(INode *pNode, const Function &Func, ECallbackType CallbackType = cbPostInsideLock)
{
    return pNode->RegisterCallback(new FunctionNodeCallback<Function>(pNode, Func, CallbackType));
}

/** Calls (client.*member)(INode *) on every change of \a pNode until the handle is deregistered. */
template <typename Client, typename Member>
CallbackHandleType Register(INode *pNode, Client &client, Member member, ECallbackType CallbackType = cbPostInsideLock)
{
    return pNode->RegisterCallback(new MemberNodeCallback<Client, Member>(pNode, &client, member, CallbackType));
}

/** Ends a registration. */
inline void Deregister(CallbackHandleType hCallback)
{
    if (hCallback)
        reinterpret_cast<CNodeCallback *>(hCallback)->GetNode()->DeregisterCallback(hCallback);
}

} // namespace GENAPI_NAMESPACE
