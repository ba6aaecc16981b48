#include "screenshots.h"

#include "cameradialog.h"
#include "camerasource.h"
#include "configuremenu.h"
#include "explorerwindow.h"

#include <QAction>
#include <QApplication>
#include <QDeadlineTimer>
#include <QDialog>
#include <QLineEdit>
#include <QScrollArea>
#include <QTimer>
#include <QToolButton>

namespace {

constexpr int longestWait = 5000; // milliseconds
constexpr QSize usualSelector(820, 640);

/** The name that the library gives a part of its windows. */
template <typename Widget>
Widget *part(QWidget &window, const char *name)
{
    return window.findChild<Widget *>(QLatin1String(name));
}

/** The configuration window is empty until it has read the camera for the first time. */
void waitForText(const QLineEdit &field)
{
    const QDeadlineTimer deadline(longestWait);
    QTimer wake; // so that the deadline is seen
    wake.start(longestWait / 10);
    while (field.text().isEmpty() && !deadline.hasExpired())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

/** A picture has a window whole, however small the screen is. */
void enlarge(QWidget &window)
{
    const auto areas = window.findChildren<QScrollArea *>();
    for (const QScrollArea *const area : areas) {
        if (!area->isVisible() || !area->widget())
            continue;
        const QSize missing = area->widget()->sizeHint() - area->viewport()->size();
        window.resize(window.size() + missing.expandedTo(QSize(0, 0)));
        QCoreApplication::processEvents();
    }
}

} // namespace

Screenshots::Screenshots(ExplorerWindow &window, const QString &directory)
    : m_window(window)
    , m_directory(directory)
{
}

bool Screenshots::save()
{
    savePages();
    if (!m_fault.isEmpty())
        return false;
    saveErrors();
    if (m_window.configureMenu().windowNamed(QStringLiteral("configwindow")))
        saveCameraWindows();
    saveSelection();
    return m_fault.isEmpty();
}

void Screenshots::savePages()
{
    m_window.ensurePolished(); // when it takes the size that the screen has
    m_window.resize(ExplorerWindow::usualSize);
    const QStringList pages = m_window.pageNames();
    for (const QString &page : pages) {
        m_window.showPage(page);
        grab(m_window, page);
    }
    m_window.showPage(pages.constFirst());
}

/** The filter with its options, and the errors that reading what it leaves has met. */
void Screenshots::saveErrors()
{
    grab(*part<QWidget>(m_window, "FilterOptions"), QStringLiteral("filteroptions"));
    auto *const filter = part<QLineEdit>(m_window, "filterLineEdit");
    filter->setText(QStringLiteral("fails"));
    part<QToolButton>(m_window, "pbExpandAll")->click();
    grab(m_window, QStringLiteral("filter"));
    part<QToolButton>(m_window, "pbStatus")->click();
    if (auto *const errors = part<QDialog>(m_window, "GenErrorsDlg"))
        showAndGrab(*errors, QStringLiteral("errors"));
    filter->clear();
}

void Screenshots::saveCameraWindows()
{
    saveConfigWindow();
    const QStringList names = m_window.configureMenu().windowNames();
    for (const QString &name : names) {
        if (!m_files.contains(m_directory.filePath(name + QStringLiteral(".png"))))
            showAndGrab(*m_window.configureMenu().windowNamed(name), name);
    }
}

void Screenshots::saveConfigWindow()
{
    QWidget &window = *m_window.configureMenu().windowNamed(QStringLiteral("configwindow"));
    window.show();
    waitForText(*part<QLineEdit>(window, "lineEditSizeFrameA"));
    part<QAction>(window, "actionAbout")->trigger();
    showAndGrab(*part<QDialog>(window, "OrvCamConfigAboutDialog"), QStringLiteral("about"));
    showAndGrab(window, QStringLiteral("configwindow"));
}

/** The dialog for a camera's IP address, and then the one that asks for a camera, in which that camera is current. */
void Screenshots::saveSelection()
{
    const std::shared_ptr<OrvCam::System> system = cameraSystem();
    CameraDialog dialog(system.get());
    dialog.show(); // the panes divide the width that they have
    dialog.resize(dialog.size().expandedTo(usualSelector));
    QCoreApplication::processEvents();
    QTimer::singleShot(0, &dialog, [this] {
        if (QWidget *const opened = QApplication::activeModalWidget())
            showAndGrab(*opened, QStringLiteral("setip"));
    });
    dialog.setFirstAddress();
    grab(dialog, QStringLiteral("selectcamera"));
}

/** A window that is shown fits its size to what is in it. */
void Screenshots::showAndGrab(QWidget &window, const QString &name)
{
    window.show();
    QCoreApplication::processEvents();
    enlarge(window);
    grab(window, name);
    window.close();
}

void Screenshots::grab(QWidget &window, const QString &name)
{
    if (!m_fault.isEmpty())
        return;
    window.grab(); // drawing reads the values, and reading finds the errors that turn red then
    QCoreApplication::processEvents();
    const QString file = m_directory.filePath(name + QStringLiteral(".png"));
    m_directory.mkpath(QStringLiteral("."));
    if (window.grab().save(file))
        m_files.append(file);
    else
        m_fault = file;
}
