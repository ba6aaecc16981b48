// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "portnode.h"

#include "nodedescription.h"

namespace OrvGenApi {

using namespace GenApi;

void PortNode::Read(void *pBuffer, int64_t Address, int64_t Length)
{
    const Entry entry(*this, "Read");
    read(pBuffer, Address, Length);
}

void PortNode::Write(const void *pBuffer, int64_t Address, int64_t Length)
{
    const Entry entry(*this, "Write");
    write(pBuffer, Address, Length);
}

/** Does \a deed; what a port throws that is no GenICam exception becomes one. */
template <typename Deed>
void PortNode::guarded(const char *what, const Deed &deed) const
{
    try {
        deed();
    } catch (const std::exception &error) {
        ORV_THROW(RuntimeException, std::string(what) + " through port '" + name() + "' failed: " + error.what());
    }
}

IPort *PortNode::connected() const
{
    if (!m_port)
        ORV_THROW(LogicalErrorException, std::string("port '") + name() + "' is not connected");
    return m_port;
}

void PortNode::connect(IPort *port)
{
    m_port = port;
    clearKept();
    if (const auto construct = dynamic_cast<IPortConstruct *>(port))
        construct->SetPortImpl(this);
}

void PortNode::read(void *buffer, int64_t address, int64_t length)
{
    if (m_stack)
        writeStack(); // what is read may be what was written
    guarded("reading", [&] { connected()->Read(buffer, address, length); });
}

void PortNode::write(const void *buffer, int64_t address, int64_t length)
{
    if (m_stack)
        m_stack->push_back({address, std::string(static_cast<const char *>(buffer), static_cast<std::size_t>(length))});
    else
        guarded("writing", [&] { connected()->Write(buffer, address, length); });
    if (m_recorder)
        m_recorder->Write(buffer, address, length);
}

void PortNode::beginStack()
{
    if (dynamic_cast<IPortStacked *>(m_port))
        m_stack.emplace();
}

void PortNode::endStack()
{
    if (!m_stack)
        return;
    try {
        writeStack();
    } catch (...) {
        m_stack.reset();
        throw;
    }
    m_stack.reset();
}

void PortNode::writeStack()
{
    if (m_stack->empty())
        return;
    std::vector<StackedWrite> writes;
    writes.swap(*m_stack);
    std::vector<PORT_REGISTER_STACK_ENTRY> entries;
    entries.reserve(writes.size());
    for (StackedWrite &write : writes)
        entries.push_back({static_cast<uint64_t>(write.address), write.bytes.data(), write.bytes.size()});
    guarded("writing", [&] { dynamic_cast<IPortStacked &>(*connected()).Write(entries.data(), entries.size()); });
}

void PortNode::StartRecording(IPortWriteList *pPortRecorder)
{
    const Entry entry(*this, "StartRecording");
    m_recorder = pPortRecorder;
}

void PortNode::Replay(IPortWriteList *pPortRecorder, bool Invalidate)
{
    if (pPortRecorder) {
        const Entry entry(*this, "Replay");
        pPortRecorder->Replay(connected());
    }
    if (Invalidate)
        InvalidateNode();
}

GenICam::gcstring PortNode::property(const char *name) const
{
    const NodeDescription::Properties properties = NodeDescription(*this).properties();
    const auto found = properties.find(name);
    return found == properties.end() ? "" : found->second.value.c_str();
}

PortNode::KeptRange &PortNode::kept(const Range &range)
{
    constexpr std::size_t most = 200000; // registers that wander leave something behind wherever they were
    const auto found = m_kept.find(range);
    if (found != m_kept.end())
        return *found;
    if (m_kept.size() >= most)
        clearKept();
    return *m_kept.emplace(range, Kept()).first;
}

void PortNode::drop(const Range &range)
{
    const auto found = m_kept.find(range);
    if (found != m_kept.end())
        found->second.reset();
}

void PortNode::clearKept()
{
    m_kept.clear();
    ++m_keptEpoch;
}

GenApi::EAccessMode PortNode::valueAccess() const
{
    GenApi::EAccessMode mode = m_isChunk ? GenApi::NA : GenApi::NI; // a chunk comes and goes
    if (m_port)
        guarded("asking for access", [&] { mode = m_port->GetAccessMode(); });
    return mode;
}

} // namespace OrvGenApi
