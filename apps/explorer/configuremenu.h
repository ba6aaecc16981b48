#pragma once

#include <QDialog>
#include <QMenu>

#include <functional>
#include <vector>

namespace OrvCam {
class Device;
} // namespace OrvCam

/**
 * The dialogs for groups of a camera's features: an entry each, checked while its dialog is open. A dialog is made when
 * it is first opened, and then follows the camera that is shown.
 */
class ConfigureMenu : public QMenu
{
    Q_OBJECT

public:
    /** \a window is the parent of the menu and its dialogs. */
    explicit ConfigureMenu(QWidget *window);

    /** Shows \a device, or no camera if it is null, in all dialogs. It lives until the dialogs are given another one.
     */
    void setDevice(OrvCam::Device *device);

    /** The dialogs' names, not translated. */
    QStringList dialogNames() const;
    /** The dialog of that name, made if need be; null for another name. Stays the menu's. */
    QDialog *dialog(const QString &name);

private:
    struct Entry
    {
        QString name;
        QAction *action;
        std::function<QDialog *()> make;
        std::function<void(QDialog *)> setDevice;
        QDialog *dialog;
    };

    template <typename Dialog>
    void add(const QString &text, const char *name);
    QDialog *dialogOf(Entry &entry);
    void open(size_t entry, bool isOpen);

    QWidget *const m_window;
    OrvCam::Device *m_device = nullptr;
    std::vector<Entry> m_entries;
};
