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

    void connect(GenApi::IPort *port)
    {
        m_port = port;
        m_kept.clear();
    }

    /** Whether registers behind this port have their bytes the other way round. */
    bool swapsEndianness() const { return m_swapEndianness; }

    void read(void *buffer, int64_t address, int64_t length);
    void write(const void *buffer, int64_t address, int64_t length);

    /**
     * What was read from or written to a range of bytes last; null when that is not known. Registers at the same place
     * share it, and none looks at the others' when ranges only overlap.
     */
    const std::string *kept(int64_t address, int64_t length) const;
    void keep(int64_t address, int64_t length, std::string bytes);
    void drop(int64_t address, int64_t length) { m_kept.erase({address, length}); }

protected:
    GenApi::EAccessMode valueAccess() const override;
    GenApi::EAccessMode endAccess() const override { return valueAccess(); }
    bool dependsOnPort() const override { return true; }

private:
    friend class DescriptionLoader;

    template <typename Deed>
    void guarded(const char *what, const Deed &deed) const;
    GenApi::IPort *connected() const;

    struct Place
    {
        int64_t address;
        int64_t length;

        bool operator==(const Place &other) const { return address == other.address && length == other.length; }
    };

    struct PlaceHash
    {
        std::size_t operator()(const Place &place) const
        {
            return std::hash<uint64_t>()(static_cast<uint64_t>(place.address) * 31
                                         + static_cast<uint64_t>(place.length));
        }
    };

    std::unordered_map<Place, std::string, PlaceHash> m_kept;
    GenApi::IPort *m_port = nullptr;
    bool m_swapEndianness = false;
    bool m_isChunk = false; ///< for data that come with an image
};

} // namespace OrvGenApi
