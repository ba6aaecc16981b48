// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "measure.h"

#include <OrvCameraGuiApi/camera_api/orvcam.h>
#include <OrvCameraGuiApi/device_selection/devicetreemodel.h>
#include <OrvCameraGuiApi/device_selection/orvcameraselectordialog.h>

#include <QApplication>
#include <QCheckBox>
#include <QStandardItemModel>
#include <QTreeView>

#include <atomic>
#include <memory>
#include <ui_orvcameraselectordialog.h>
#include <utility>

namespace {

constexpr int fewInterfaces = 20;
constexpr int manyInterfaces = 200;
constexpr int devicesPerInterface = 50;
constexpr int repetitions = 15;

template <typename List, typename Entry>
class PlainList final : public List
{
public:
    explicit PlainList(std::vector<Entry *> entries)
        : m_entries(std::move(entries))
    {
    }

    void Release() override { delete this; }
    std::size_t GetSize() override { return m_entries.size(); }
    Entry *GetFirst() override { return GetAt(0); }
    Entry *GetNext() override { return GetAt(m_next); }

private:
    Entry *GetAt(std::size_t position)
    {
        m_next = position + 1;
        return position < m_entries.size() ? m_entries[position] : nullptr;
    }

    const std::vector<Entry *> m_entries;
    std::size_t m_next = 0;
};

class PlainDevice final : public OrvCam::DeviceInfo
{
public:
    PlainDevice(OrvCam::Interface *interface, const std::string &id)
        : m_interface(interface)
        , m_id(id)
        , m_name("Camera " + id)
    {
    }

    OrvCam::Interface *GetInterface() override { return m_interface; }
    const char *GetID() override { return m_id.c_str(); }
    const char *GetVendor() override { return "Orv"; }
    const char *GetModel() override { return "Model"; }
    const char *GetDisplayName() override { return m_name.c_str(); }
    const char *GetUserDefinedName() override { return ""; }
    const char *GetSerialNumber() override { return m_id.c_str(); }
    const char *GetVersion() override { return "1.0"; }
    std::int32_t GetAccessStatus() override { return OrvCam::AccessStatusReadWrite; }
    const char *GetIPAddress(OrvCamErr *err) override { return noAddress(err); }
    const char *GetSubnetMask(OrvCamErr *err) override { return noAddress(err); }
    const char *GetGateway(OrvCamErr *err) override { return noAddress(err); }
    OrvCamErr ForceIP(std::uint32_t, std::uint32_t, std::uint32_t) override { return OrvCamErr_InvalidState; }

private:
    static const char *noAddress(OrvCamErr *err)
    {
        if (err)
            *err = OrvCamErr_InvalidState;
        return nullptr;
    }

    OrvCam::Interface *const m_interface;
    const std::string m_id;
    const std::string m_name;
};

class PlainInterface final : public OrvCam::Interface
{
public:
    explicit PlainInterface(int number)
        : m_id("interface-" + std::to_string(number))
    {
        for (int i = 0; i < devicesPerInterface; ++i)
            m_devices.push_back(std::make_unique<PlainDevice>(this, std::to_string(number) + '.' + std::to_string(i)));
    }

    OrvCam::DeviceInfoList *GetDeviceInfoList() override
    {
        std::vector<OrvCam::DeviceInfo *> present;
        for (const auto &device : m_devices)
            present.push_back(device.get());
        if (lacksFirst)
            present.erase(present.begin());
        return new PlainList<OrvCam::DeviceInfoList, OrvCam::DeviceInfo>(std::move(present));
    }
    OrvCamErr ReEnumerateDevices(bool *, std::uint32_t) override { return OrvCamErr_Ok; }
    const char *GetDescription() override { return m_id.c_str(); }
    std::int32_t GetType() override { return OrvCam::InterfaceTypeCoaXPress; }
    const char *GetID() override { return m_id.c_str(); }
    const char *GetVersion() override { return "1.0"; }
    OrvGenParam::Array *GetParameters(OrvCamErr *err) override
    {
        if (err)
            *err = OrvCamErr_InvalidState;
        return nullptr;
    }

    std::atomic<bool> lacksFirst{false};

private:
    const std::string m_id;
    std::vector<std::unique_ptr<PlainDevice>> m_devices;
};

/** A camera system whose objects cost next to nothing. */
class PlainSystem final : public OrvCam::System
{
public:
    explicit PlainSystem(int interfaces)
    {
        for (int i = 0; i < interfaces; ++i)
            m_interfaces.push_back(std::make_unique<PlainInterface>(i));
    }

    void Release() override { }
    OrvCam::InterfaceList *GetInterfaceList(std::uint32_t) override
    {
        std::vector<OrvCam::Interface *> all;
        for (const auto &interface : m_interfaces)
            all.push_back(interface.get());
        return new PlainList<OrvCam::InterfaceList, OrvCam::Interface>(std::move(all));
    }

    PlainInterface &first() { return *m_interfaces.front(); }

private:
    std::vector<std::unique_ptr<PlainInterface>> m_interfaces;
};

/** The steps that are measured. */
struct Steps
{
    Samples open; ///< made, filled, expanded and shown, without the enumeration
    Samples expand; ///< everything, after everything was collapsed
    Samples change; ///< the list is another one, and the device that was current is again
};

/** The device in the middle of the last interface. */
QModelIndex deviceIn(const QAbstractItemModel &model)
{
    return model.index(devicesPerInterface / 2, 0, model.index(model.rowCount() - 1, 0));
}

double millisecondsToExpand(QTreeView &tree)
{
    tree.collapseAll();
    QCoreApplication::processEvents();
    return millisecondsOf([&tree] {
        tree.expandAll();
        QCoreApplication::processEvents();
    });
}

/** Lets the polling thread find a change, and measures from the moment the model adopts it. */
double millisecondsToAdopt(QWidget &dialog, const QAbstractItemModel &model)
{
    QElapsedTimer timer;
    const auto connection =
        QObject::connect(&model, &QAbstractItemModel::modelAboutToBeReset, &dialog, [&timer] { timer.start(); });
    dialog.findChild<QCheckBox *>()->click();
    while (!timer.isValid())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    QCoreApplication::processEvents();
    const double milliseconds = double(timer.nsecsElapsed()) * 1e-6;
    QObject::disconnect(connection);
    return milliseconds;
}

void measureOurs(Steps &steps, int interfaces)
{
    PlainSystem system(interfaces);
    std::unique_ptr<OrvGui::OrvCameraSelectorDialog> dialog;
    const double all = millisecondsOf([&] {
        dialog = std::make_unique<OrvGui::OrvCameraSelectorDialog>(&system, nullptr, false);
        dialog->show();
        QCoreApplication::processEvents();
    });
    // A model that nobody looks at has done nothing but enumerate.
    steps.open.add(all - millisecondsOf([&system] { DeviceTreeModel(&system, nullptr); }));
    auto *const tree = dialog->findChild<QTreeView *>(QStringLiteral("deviceTreeView"));
    steps.expand.add(millisecondsToExpand(*tree));

    tree->setCurrentIndex(deviceIn(*tree->model()));
    const OrvCam::DeviceInfo *const camera = dialog->selectedCamera();
    QCoreApplication::processEvents();
    system.first().lacksFirst = true;
    steps.change.add(millisecondsToAdopt(*dialog, *tree->model()));
    require(tree->model()->rowCount(tree->model()->index(0, 0)) == devicesPerInterface - 1, "no change was adopted");
    require(camera && dialog->selectedCamera() == camera, "another camera is current than before");
}

/** The same form over models that hold all texts already. */
class BareDialog : public QDialog
{
public:
    explicit BareDialog(QStandardItemModel &model)
    {
        ui.setupUi(this);
        setModel(model);
    }

    void setModel(QStandardItemModel &model)
    {
        ui.deviceTreeView->setModel(&model);
        ui.deviceTreeView->expandAll();
    }

    /** Makes that row current and fills the panes with as much text as ours. */
    void setCurrent(const QModelIndex &index)
    {
        ui.deviceTreeView->setCurrentIndex(index);
        fill(*ui.deviceInfoView, 7);
        fill(*ui.interfaceInfoView, 3);
    }

    Ui_OrvCameraSelectorDialog ui;

private:
    void fill(QAbstractItemView &pane, int rows)
    {
        auto *const model = new QStandardItemModel(rows, 2, this);
        for (int row = 0; row < rows; ++row) {
            model->setItem(row, 0, new QStandardItem(QStringLiteral("Label")));
            model->setItem(row, 1, new QStandardItem(QStringLiteral("Value")));
        }
        pane.setModel(model);
    }
};

void fill(QStandardItemModel &model, PlainSystem &system)
{
    OrvCam::InterfaceList *const interfaces = system.GetInterfaceList(OrvCam::AllInterfaceTypes);
    for (OrvCam::Interface *interface = interfaces->GetFirst(); interface; interface = interfaces->GetNext()) {
        auto *const parent = new QStandardItem(QString::fromUtf8(interface->GetDescription()));
        OrvCam::DeviceInfoList *const devices = interface->GetDeviceInfoList();
        for (OrvCam::DeviceInfo *device = devices->GetFirst(); device; device = devices->GetNext())
            parent->appendRow(new QStandardItem(QString::fromUtf8(device->GetDisplayName())));
        devices->Release();
        model.appendRow(parent);
    }
    interfaces->Release();
}

void measureBare(Steps &steps, int interfaces)
{
    PlainSystem system(interfaces);
    QStandardItemModel before;
    QStandardItemModel after;
    fill(before, system);
    system.first().lacksFirst = true;
    fill(after, system);

    std::unique_ptr<BareDialog> dialog;
    steps.open.add(millisecondsOf([&] {
        dialog = std::make_unique<BareDialog>(before);
        dialog->show();
        QCoreApplication::processEvents();
    }));
    steps.expand.add(millisecondsToExpand(*dialog->ui.deviceTreeView));
    dialog->setCurrent(deviceIn(before));
    QCoreApplication::processEvents();
    steps.change.add(millisecondsOf([&] {
        dialog->setModel(after);
        dialog->setCurrent(deviceIn(after));
        QCoreApplication::processEvents();
    }));
}

} // namespace

/** The camera selector with many devices: orv-devicetree-benchmark */
int main(int argc, char **argv)
{
    const QApplication app(argc, argv);
    Steps ours;
    Steps oursWithFew;
    Steps bare;
    for (int i = 0; i <= repetitions; ++i) {
        Steps warmUp;
        measureOurs(i ? ours : warmUp, manyInterfaces);
        measureBare(i ? bare : warmUp, manyInterfaces);
        measureOurs(i ? oursWithFew : warmUp, fewInterfaces);
    }
    Table table;
    const struct
    {
        const char *name;
        Samples Steps::*samples;
    } steps[] = {{"open", &Steps::open}, {"expand", &Steps::expand}, {"adopt a change", &Steps::change}};
    const auto add = [&](const char *what, const Steps &other, double bound) {
        for (const auto &step : steps)
            table.add(QLatin1String(step.name) + QLatin1String(what), QStringLiteral("ms"),
                      (ours.*step.samples).median(), (other.*step.samples).median(), bound);
    };
    add(", 200 interfaces beside a plain model", bare, 1.5);
    add(", 200 interfaces beside 20", oursWithFew, 12);
    table.print();
    return 0;
}
