#pragma once

#include <GenApi/GenApi.h>
#include <OrvGenApi/memoryport.h>
#include <OrvGenApi/nodemap.h>

#include <QByteArray>

#include <memory>

/** A node map over memory. */
struct FeatureCamera
{
    /** \a nodes: what stands between the description's own tags, without the port. */
    explicit FeatureCamera(const QByteArray &nodes);

    /** A feature of each kind, each listed once. */
    static QByteArray allKinds();

    template <typename Pointer = GenApi::CNodePtr>
    Pointer node(const char *name) const
    {
        return Pointer(map->GetNode(name));
    }

    OrvGenApi::MemoryPort port;
    std::unique_ptr<OrvGenApi::NodeMap> map;
};
