// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/device_selection/devicetreenode.h>

#include <OrvCameraGuiApi/device_selection/devicetreemodel.h>

#include <QCoreApplication>

DeviceTreeNode::DeviceTreeNode(DeviceTreeModel &model, DeviceTreeNode *parent, int row)
    : m_model(model)
    , m_parent(parent)
    , m_row(row)
{
}

DeviceTreeNode::~DeviceTreeNode() = default;

template <typename Node, typename Object>
void DeviceTreeNode::addChildren(const std::vector<Object *> &objects)
{
    if (objects.empty())
        return;
    const int first = childCount();
    m_model.beginInsertRows(m_model.index(this), first, first + int(objects.size()) - 1);
    m_children.reserve(m_children.size() + objects.size());
    for (Object *object : objects)
        m_children.push_back(std::make_unique<Node>(m_model, this, childCount(), object));
    m_model.endInsertRows();
}

RootNode::RootNode(DeviceTreeModel &model, OrvCam::System *system)
    : DeviceTreeNode(model, nullptr, 0)
    , m_system(system)
{
}

QVariant RootNode::data(int column, int role) const
{
    return column == 0 && role == Qt::DisplayRole ? QCoreApplication::translate("DeviceTreeModel", "Name") : QVariant();
}

void RootNode::fetchMore()
{
    addChildren<InterfaceNode>(m_model.interfaces());
}

InterfaceNode::InterfaceNode(DeviceTreeModel &model, DeviceTreeNode *parent, int row, OrvCam::Interface *transport)
    : DeviceTreeNode(model, parent, row)
    , m_interface(transport)
{
}

QVariant InterfaceNode::data(int column, int role) const
{
    if (column == 0 && role == Qt::DisplayRole)
        return QString::fromUtf8(m_interface->GetDescription());
    return column == 0 && role == Qt::UserRole ? QVariant::fromValue(m_interface) : QVariant();
}

void InterfaceNode::fetchMore()
{
    addChildren<DeviceInfoNode>(m_model.devicesOn(QString::fromLatin1(m_interface->GetID())));
}

DeviceInfoNode::DeviceInfoNode(DeviceTreeModel &model, DeviceTreeNode *parent, int row, OrvCam::DeviceInfo *device)
    : DeviceTreeNode(model, parent, row)
    , m_device(device)
{
}

QVariant DeviceInfoNode::data(int column, int role) const
{
    if (column == 0 && role == Qt::DisplayRole)
        return QString::fromUtf8(m_device->GetDisplayName());
    return column == 0 && role == Qt::UserRole ? QVariant::fromValue(m_device) : QVariant();
}
