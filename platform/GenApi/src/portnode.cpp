#include "portnode.h"

namespace OrvGenApi {

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
    } catch (const GenICam::GenericException &) {
        throw;
    } catch (const std::exception &error) {
        ORV_THROW(RuntimeException, std::string(what) + " through port '" + name() + "' failed: " + error.what());
    }
}

GenApi::IPort *PortNode::connected() const
{
    if (!m_port)
        ORV_THROW(LogicalErrorException, std::string("port '") + name() + "' is not connected");
    return m_port;
}

void PortNode::read(void *buffer, int64_t address, int64_t length)
{
    guarded("reading", [&] { connected()->Read(buffer, address, length); });
}

void PortNode::write(const void *buffer, int64_t address, int64_t length)
{
    guarded("writing", [&] { connected()->Write(buffer, address, length); });
}

const std::string *PortNode::kept(int64_t address, int64_t length) const
{
    const auto found = m_kept.find({address, length});
    return found == m_kept.end() ? nullptr : &found->second;
}

void PortNode::keep(int64_t address, int64_t length, std::string bytes)
{
    constexpr std::size_t most = 100000; // registers that wander leave something behind wherever they were
    if (m_kept.size() >= most)
        m_kept.clear();
    m_kept[{address, length}] = std::move(bytes);
}

GenApi::EAccessMode PortNode::valueAccess() const
{
    GenApi::EAccessMode mode = m_isChunk ? GenApi::NA : GenApi::NI; // a chunk comes and goes
    if (m_port)
        guarded("asking for access", [&] { mode = m_port->GetAccessMode(); });
    return mode;
}

} // namespace OrvGenApi
