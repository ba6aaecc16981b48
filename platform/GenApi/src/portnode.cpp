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

GenApi::IPort *PortNode::connected() const
{
    if (!m_port)
        ORV_THROW(LogicalErrorException, std::string("port '") + name() + "' is not connected");
    return m_port;
}

void PortNode::read(void *buffer, int64_t address, int64_t length)
{
    try {
        connected()->Read(buffer, address, length);
    } catch (const GenICam::GenericException &) {
        throw;
    } catch (const std::exception &error) {
        ORV_THROW(RuntimeException, std::string("reading through port '") + name() + "' failed: " + error.what());
    }
}

void PortNode::write(const void *buffer, int64_t address, int64_t length)
{
    try {
        connected()->Write(buffer, address, length);
    } catch (const GenICam::GenericException &) {
        throw;
    } catch (const std::exception &error) {
        ORV_THROW(RuntimeException, std::string("writing through port '") + name() + "' failed: " + error.what());
    }
}

} // namespace OrvGenApi
