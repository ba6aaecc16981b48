// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "paramobject.h"

namespace OrvCameraApi {

ParamObject::ParamObject(GenApi::INode *node, const ParamContext &context, OrvGenParam::ParamType type)
    : m_node(node)
    , m_context(context)
    , m_type(type)
    , m_name(node->GetName().c_str())
{
}

ParamObject::~ParamObject()
{
    const NodeMapLock lock(m_context.map);
    unwatchNode();
}

bool ParamObject::IsAvailable()
{
    const GenApi::EAccessMode mode = accessMode();
    return mode == GenApi::WO || mode == GenApi::RO || mode == GenApi::RW;
}

bool ParamObject::IsWritable()
{
    const GenApi::EAccessMode mode = accessMode();
    return mode == GenApi::WO || mode == GenApi::RW;
}

bool ParamObject::IsReadable()
{
    const GenApi::EAccessMode mode = accessMode();
    return mode == GenApi::RO || mode == GenApi::RW;
}

GenApi::EAccessMode ParamObject::accessMode() const
{
    GenApi::EAccessMode mode = GenApi::NI;
    attempt([&] { mode = m_node->GetAccessMode(); });
    return mode;
}

OrvCamErr ParamObject::RegisterEvent(OrvGenParam::ParamEventSink *sink)
{
    if (!sink)
        return OrvCamErr_InvalidArgument;
    const NodeMapLock lock(m_context.map);
    return errorOf([&] {
        watchNode();
        m_sinks.add(sink);
    });
}

OrvCamErr ParamObject::UnregisterEvent(OrvGenParam::ParamEventSink *sink)
{
    const NodeMapLock lock(m_context.map);
    m_sinks.remove(sink);
    if (m_sinks.isEmpty())
        unwatchNode();
    return OrvCamErr_Ok;
}

void ParamObject::watchNode()
{
    if (m_callback)
        return;
    // The node calls inside the lock, which makes UnregisterEvent() wait for a delivery on another thread.
    m_callback = GenApi::Register(m_node, *this, &ParamObject::onNodeChanged, GenApi::cbPostInsideLock);
    m_countedCallback.emplace(liveCounts().nodeCallbacks);
}

void ParamObject::unwatchNode()
{
    if (!m_callback)
        return;
    errorOf([this] { GenApi::Deregister(m_callback); });
    m_callback = {};
    m_countedCallback.reset();
}

void ParamObject::onNodeChanged(GenApi::INode *)
{
    // A sink may register and unregister any sink, itself included.
    for (const auto &registration : m_sinks.snapshot()) {
        if (m_sinks.contains(registration))
            registration.receiver->OnParameterUpdate(this);
    }
}

} // namespace OrvCameraApi
