#include "configuremenu.h"

#include <OrvCameraGuiApi/camconfig/dialogs/orvcamconfigcolordialog.h>
#include <OrvCameraGuiApi/camconfig/dialogs/orvcamconfigoutputdialog.h>
#include <OrvCameraGuiApi/camconfig/dialogs/orvcamconfigpulsedialog.h>
#include <OrvCameraGuiApi/camconfig/dialogs/orvcamconfigstrobedialog.h>
#include <OrvCameraGuiApi/camconfig/dialogs/orvcamconfigtriggerdialog.h>

ConfigureMenu::ConfigureMenu(QWidget *window)
    : QMenu(tr("&Configure"), window)
    , m_window(window)
{
    setObjectName(QStringLiteral("configure"));
    add<OrvGui::OrvCamConfigTriggerDialog>(tr("&Trigger"), "trigger");
    add<OrvGui::OrvCamConfigPulseDialog>(tr("&Pulse"), "pulse");
    add<OrvGui::OrvCamConfigStrobeDialog>(tr("&Strobe"), "strobe");
    add<OrvGui::OrvCamConfigOutputDialog>(tr("&Data Out"), "dataout");
    add<OrvGui::OrvCamConfigColorDialog>(tr("&Color"), "color");
}

template <typename Dialog>
void ConfigureMenu::add(const QString &text, const char *name)
{
    QAction *const action = addAction(text);
    const size_t index = m_entries.size();
    action->setObjectName(QLatin1String(name));
    action->setCheckable(true);
    connect(action, &QAction::toggled, this, [this, index](bool isOn) { open(index, isOn); });
    const auto make = [this, action] {
        auto *const dialog = new Dialog(m_device, m_window);
        connect(dialog, &Dialog::closing, action, [action] { action->setChecked(false); });
        return dialog;
    };
    const auto setDevice = [this](QDialog *dialog) { static_cast<Dialog *>(dialog)->SetDevice(m_device); };
    m_entries.push_back({QLatin1String(name), action, make, setDevice, nullptr});
}

void ConfigureMenu::setDevice(OrvCam::Device *device)
{
    m_device = device;
    for (Entry &entry : m_entries) {
        entry.action->setEnabled(device != nullptr);
        if (entry.dialog)
            entry.setDevice(entry.dialog);
    }
}

QStringList ConfigureMenu::dialogNames() const
{
    QStringList names;
    for (const Entry &entry : m_entries)
        names.append(entry.name);
    return names;
}

QDialog *ConfigureMenu::dialog(const QString &name)
{
    for (Entry &entry : m_entries) {
        if (entry.name == name)
            return dialogOf(entry);
    }
    return nullptr;
}

QDialog *ConfigureMenu::dialogOf(Entry &entry)
{
    if (!entry.dialog)
        entry.dialog = entry.make();
    return entry.dialog;
}

void ConfigureMenu::open(size_t entry, bool isOpen)
{
    QDialog *const dialog = dialogOf(m_entries[entry]);
    if (isOpen)
        dialog->show();
    else
        dialog->close();
}
