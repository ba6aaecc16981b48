// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QVariant>

#include <memory>
#include <vector>

namespace OrvCam {
class DeviceInfo;
class Interface;
class System;
} // namespace OrvCam

class DeviceTreeModel;

/**
 * An item of a DeviceTreeModel. It owns its children and remembers one object of the camera access library, which it
 * asks for everything that it shows.
 */
class DeviceTreeNode
{
public:
    DeviceTreeNode(DeviceTreeModel &model, DeviceTreeNode *parent, int row);
    virtual ~DeviceTreeNode();
    Q_DISABLE_COPY(DeviceTreeNode)

    virtual QVariant data(int column, int role) const = 0;
    virtual bool hasChildren() const = 0;
    virtual bool canFetchMore() const = 0;
    virtual void fetchMore() = 0;

    DeviceTreeNode *parent() const { return m_parent; }
    /** The place of the node among its parent's children; 0 for the root. */
    int row() const { return m_row; }
    qint32 childCount() const { return qint32(m_children.size()); }
    DeviceTreeNode *child(int row) const { return m_children[size_t(row)].get(); }

protected:
    /** Announces and adds a \a Node for each of \a objects. */
    template <typename Node, typename Object>
    void addChildren(const std::vector<Object *> &objects);

    DeviceTreeModel &m_model;

private:
    DeviceTreeNode *const m_parent;
    const int m_row;
    std::vector<std::unique_ptr<DeviceTreeNode>> m_children;
};

/** The camera system; its children are the interfaces. */
class RootNode : public DeviceTreeNode
{
public:
    RootNode(DeviceTreeModel &model, OrvCam::System *system);

    QVariant data(int column, int role) const override;
    bool hasChildren() const override { return true; }
    bool canFetchMore() const override { return childCount() == 0; }
    void fetchMore() override;

    OrvCam::System *system() const { return m_system; }

private:
    OrvCam::System *const m_system;
};

/** An interface; its children are the devices that were found on it. */
class InterfaceNode : public DeviceTreeNode
{
public:
    InterfaceNode(DeviceTreeModel &model, DeviceTreeNode *parent, int row, OrvCam::Interface *transport);

    QVariant data(int column, int role) const override;
    /** Also without a device: the model does not know before it is asked for them. */
    bool hasChildren() const override { return true; }
    bool canFetchMore() const override { return childCount() == 0; }
    void fetchMore() override;

    OrvCam::Interface *object() const { return m_interface; }

private:
    OrvCam::Interface *const m_interface;
};

class DeviceInfoNode : public DeviceTreeNode
{
public:
    DeviceInfoNode(DeviceTreeModel &model, DeviceTreeNode *parent, int row, OrvCam::DeviceInfo *device);

    QVariant data(int column, int role) const override;
    bool hasChildren() const override { return false; }
    bool canFetchMore() const override { return false; }
    void fetchMore() override { }

    OrvCam::DeviceInfo *object() const { return m_device; }

private:
    OrvCam::DeviceInfo *const m_device;
};
