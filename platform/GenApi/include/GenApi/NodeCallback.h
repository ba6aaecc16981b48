// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <GenApi/INode.h>
#include <GenApi/Types.h>

namespace GENAPI_NAMESPACE {

/** Called when a node, or something that it depends on, has changed. Belongs to the node that it is registered on. */
class ORV_GENAPI_EXPORT CNodeCallback
{
public:
    CNodeCallback(INode *pNode, ECallbackType CallbackType)
        : m_pNode(pNode)
        , m_CallbackType(CallbackType)
    {
    }
    virtual ~CNodeCallback() = default;
    CNodeCallback(const CNodeCallback &) = delete;
    CNodeCallback &operator=(const CNodeCallback &) = delete;

    /** Called for both moments; acts in the one the callback was made for. */
    virtual void operator()(ECallbackType CallbackType) const = 0;
    virtual void Destroy() = 0;

    INode *GetNode() { return m_pNode; }

protected:
    INode *m_pNode;
    ECallbackType m_CallbackType;

private:
    friend class CallbackList;

    CNodeCallback *m_next = nullptr; ///< the node's next callback
};

/** Calls a function with the node, unless the function is null: what is given can be asked for that, as pointers can.
 */
template <class Function>
class Function_NodeCallback : public CNodeCallback
{
public:
    Function_NodeCallback(INode *pNode, const Function &function, ECallbackType CallbackType)
        : CNodeCallback(pNode, CallbackType)
        , m_function(function)
    {
    }

    void operator()(ECallbackType CallbackType) const override
    {
        if (m_function && CallbackType == m_CallbackType)
            m_function(m_pNode);
    }

    void Destroy() override { delete this; }

private:
    const Function m_function;
};

/** Calls a member function with the node; the client outlives the registration. */
template <class Client, class Member>
class Member_NodeCallback : public CNodeCallback
{
public:
    using PMEMBERFUNC = void (Client::*)(INode *);

    Member_NodeCallback(INode *pNode, Client &client, Member member, ECallbackType CallbackType)
        : CNodeCallback(pNode, CallbackType)
        , m_client(client)
        , m_member(member)
    {
    }

    void operator()(ECallbackType CallbackType) const override
    {
        if (m_member && CallbackType == m_CallbackType)
            (m_client.*m_member)(m_pNode);
    }

    void Destroy() override { delete this; }

private:
    Client &m_client;
    const PMEMBERFUNC m_member;
};

/** Callbacks as INode::RegisterCallback() takes them. */
template <class Function>
CNodeCallback *make_NodeCallback(INode *pNode, Function function, ECallbackType CallbackType)
{
    return new Function_NodeCallback<Function>(pNode, function, CallbackType);
}

template <class Client, class Member>
CNodeCallback *make_NodeCallback(INode *pNode, Client &client, Member member, ECallbackType CallbackType)
{
    return new Member_NodeCallback<Client, Member>(pNode, client, member, CallbackType);
}

/** Calls \a f(INode *) on every change of \a pNode until the handle is deregistered. */
template <class Function>
CallbackHandleType Register(INode *pNode, Function f, ECallbackType CallbackType = cbPostInsideLock)
{
    return pNode->RegisterCallback(make_NodeCallback(pNode, f, CallbackType));
}

/** Calls (c.*m)(INode *) on every change of \a pNode until the handle is deregistered. */
template <class Client, class Member>
CallbackHandleType Register(INode *pNode, Client &c, Member m, ECallbackType CallbackType = cbPostInsideLock)
{
    return pNode->RegisterCallback(make_NodeCallback(pNode, c, m, CallbackType));
}

/** Ends a registration. */
inline void Deregister(CallbackHandleType pCallbackInfo)
{
    if (pCallbackInfo)
        reinterpret_cast<CNodeCallback *>(pCallbackInfo)->GetNode()->DeregisterCallback(pCallbackInfo);
}

} // namespace GENAPI_NAMESPACE
