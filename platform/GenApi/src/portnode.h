#pragma once

#include "nodemapimpl.h"

#include <GenApi/IPort.h>

namespace OrvGenApi {

/** Passes reads and writes on to the port that is connected. */
class PortNode final : public Node, public GenApi::IPort
{
public:
    using Node::Node;

    void Read(void *pBuffer, int64_t Address, int64_t Length) override;
    void Write(const void *pBuffer, int64_t Address, int64_t Length) override;

    GenApi::EInterfaceType interfaceType() const override { return GenApi::intfIPort; }

    void connect(GenApi::IPort *port) { m_port = port; }

    /** Whether registers behind this port have their bytes the other way round. */
    bool swapsEndianness() const { return m_swapEndianness; }

    void read(void *buffer, int64_t address, int64_t length);
    void write(const void *buffer, int64_t address, int64_t length);

protected:
    GenApi::EAccessMode valueAccess() const override;

private:
    friend class DescriptionLoader;

    template <typename Deed>
    void guarded(const char *what, const Deed &deed) const;
    GenApi::IPort *connected() const;

    GenApi::IPort *m_port = nullptr;
    bool m_swapEndianness = false;
};

} // namespace OrvGenApi
