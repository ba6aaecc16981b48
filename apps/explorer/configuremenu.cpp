// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "configuremenu.h"

#include <OrvCameraGuiApi/camconfig/featuredialogs.h>
#include <OrvCameraGuiApi/camconfig/orvcamconfig.h>
#include <OrvCameraGuiApi/camera_api/orvgenparam.h>

#include <QSettings>

namespace {

QString placeKey(const QAction &action)
{
    return action.objectName() + QStringLiteral("/geometry");
}

bool hasFeature(OrvCam::Device *device, const char *feature)
{
    OrvGenParam::Array *const parameters = device ? device->GetCameraParameters(nullptr) : nullptr;
    return parameters && parameters->GetEnum(feature, nullptr);
}

} // namespace

ConfigureMenu::ConfigureMenu(QWidget *window)
    : QMenu(tr("&Configure"), window)
    , m_parent(window)
{
    setObjectName(QStringLiteral("configure"));
    addConfigWindow();
    addSeparator();
    for (const OrvGui::FeatureDialog &feature : OrvGui::featureDialogs())
        addDialog(feature);
    updateEntries();
}

void ConfigureMenu::addConfigWindow()
{
    const auto make = [this]() -> QWidget * { return new OrvGui::OrvCamConfig(m_device, m_parent); };
    const auto setDevice = [](QWidget *window, OrvCam::Device *device) {
        static_cast<OrvGui::OrvCamConfig *>(window)->SetDevice(device);
    };
    QAction *const action = addAction(QIcon(QStringLiteral(":/explorer/configwindow.ico")), tr("Configuration &Window"),
                                      this, &ConfigureMenu::openConfigWindow);
    action->setObjectName(QStringLiteral("configwindow"));
    m_entries.push_back({action, make, setDevice, nullptr, nullptr, {}});
}

void ConfigureMenu::addDialog(const OrvGui::FeatureDialog &feature)
{
    QAction *const action = addAction(QIcon(QLatin1String(feature.icon)), QLatin1Char('&') + tr(feature.title));
    const std::size_t index = m_entries.size();
    action->setObjectName(QLatin1String(feature.kind));
    action->setCheckable(true);
    connect(action, &QAction::toggled, this, [this, index](bool isOn) { openDialog(m_entries[index], isOn); });
    const auto make = [this, action, &feature]() -> QWidget * {
        QDialog *const dialog = feature.make(m_isReachable ? m_device : nullptr, m_parent);
        feature.onClosing(*dialog, action, [action] { action->setChecked(false); });
        return dialog;
    };
    const auto setDevice = [&feature](QWidget *dialog, OrvCam::Device *device) {
        feature.setDevice(*static_cast<QDialog *>(dialog), device);
    };
    m_entries.push_back({action, make, setDevice, feature.neededFeature, nullptr, {}});
}

void ConfigureMenu::setDevice(OrvCam::Device *device)
{
    m_device = device;
    m_isReachable = true;
    for (Entry &entry : m_entries) {
        if (entry.window)
            entry.setDevice(entry.window, device);
    }
    updateEntries();
}

/** The configuration window is left alone: it notices by itself, and what it shows may be another camera. */
void ConfigureMenu::setReachable(bool reachable)
{
    m_isReachable = reachable;
    for (auto dialog = m_entries.begin() + 1; dialog != m_entries.end(); ++dialog) {
        if (dialog->window)
            dialog->setDevice(dialog->window, reachable ? m_device : nullptr);
    }
    updateEntries();
}

/** A dialog about what the camera does not have would be of no use. */
void ConfigureMenu::updateEntries()
{
    m_entries.front().action->setEnabled(m_device);
    const bool hasCamera = m_device && m_isReachable;
    for (auto dialog = m_entries.begin() + 1; dialog != m_entries.end(); ++dialog) {
        const bool isOfUse = !dialog->neededFeature || !hasCamera || hasFeature(m_device, dialog->neededFeature);
        dialog->action->setEnabled(hasCamera && isOfUse);
        if (!isOfUse)
            dialog->action->setChecked(false);
    }
}

QStringList ConfigureMenu::windowNames() const
{
    QStringList names;
    for (const Entry &entry : m_entries)
        names.append(entry.action->objectName());
    return names;
}

QWidget *ConfigureMenu::windowNamed(const QString &name)
{
    for (Entry &entry : m_entries) {
        if (m_device && entry.action->objectName() == name)
            return windowOf(entry);
    }
    return nullptr;
}

QWidget *ConfigureMenu::windowOf(Entry &entry)
{
    if (!entry.window) {
        entry.window = entry.make();
        entry.window->restoreGeometry(entry.place);
    }
    return entry.window;
}

void ConfigureMenu::saveSettings(QSettings &settings) const
{
    for (const Entry &entry : m_entries) {
        if (entry.window)
            settings.setValue(placeKey(*entry.action), entry.window->saveGeometry());
    }
}

void ConfigureMenu::restoreSettings(const QSettings &settings)
{
    for (Entry &entry : m_entries)
        entry.place = settings.value(placeKey(*entry.action)).toByteArray();
}

void ConfigureMenu::openConfigWindow()
{
    Entry &entry = m_entries.front();
    if (entry.window && entry.window->isHidden())
        entry.setDevice(entry.window, m_device);
    QWidget *const window = windowOf(entry);
    window->show();
    window->raise();
    window->activateWindow();
}

void ConfigureMenu::openDialog(Entry &entry, bool isOpen)
{
    if (isOpen)
        windowOf(entry)->show();
    else if (entry.window)
        entry.window->close();
}
