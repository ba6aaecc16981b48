// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <GenApi/GenApi.h>
#include <OrvGenApi/memoryport.h>
#include <OrvGenApi/nodemap.h>
#include <OrvGenApi/testing/faults.h>

#include <QAbstractItemModel>
#include <QByteArray>

#include <memory>

using OrvGenApi::testing::clearFaults;
using OrvGenApi::testing::failGetter;
using OrvGenApi::testing::registeredCallbacks;

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

/** All rows under \a parent, depth first. */
QModelIndexList rowsOf(const QAbstractItemModel &model, const QModelIndex &parent = QModelIndex());

/** The node that the row shows. */
GenApi::INode *nodeOf(const QModelIndex &index);

QString nodeName(const QModelIndex &index);

/** The cell of the first row that shows \a node; invalid when there is none. */
QModelIndex cellOf(const QAbstractItemModel &model, const GenApi::INode *node, int column = 1);
