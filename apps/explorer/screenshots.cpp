// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "screenshots.h"

#include "cameradialog.h"
#include "camerasource.h"
#include "configuremenu.h"
#include "explorerwindow.h"
#include "picture/histogram.h"

#include <OrvCameraApi/transports.h>

#include <QAction>
#include <QApplication>
#include <QDeadlineTimer>
#include <QDialog>
#include <QDockWidget>
#include <QLineEdit>
#include <QScrollArea>
#include <QTimer>
#include <QToolButton>

#include <functional>

namespace {

constexpr int longestWait = 5000; // milliseconds
constexpr QSize usualSelector(820, 640);
constexpr int pictureWidth = 420; // beside the features

/** The name that the library gives a part of its windows. */
template <typename Widget>
Widget *part(QWidget &window, const char *name)
{
    return window.findChild<Widget *>(QLatin1String(name));
}

/** Until \a condition holds, but not for ever. */
void waitFor(const std::function<bool()> &condition)
{
    const QDeadlineTimer deadline(longestWait);
    QTimer wake; // so that the deadline is seen
    wake.start(longestWait / 10);
    while (!condition() && !deadline.hasExpired())
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
    savePicture();
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

/** Only of a simulated camera: nobody has said that a real one is to be started. */
void Screenshots::savePicture()
{
    if (OrvTransports::used() != OrvTransports::Cameras::Simulated || !part<QAction>(m_window, "start")->isEnabled())
        return;
    auto *const dock = part<QDockWidget>(m_window, "picture");
    const QSize size = m_window.size();
    m_window.resize(size + QSize(pictureWidth, 0));
    part<QAction>(m_window, "oneframe")->trigger();
    part<QAction>(m_window, "histogram")->trigger();
    waitFor([dock] { return !dock->findChild<HistogramView *>()->isEmpty(); });
    grab(m_window, QStringLiteral("picture"));
    dock->close();
    m_window.resize(size);
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
    const auto *const field = part<QLineEdit>(window, "lineEditSizeFrameA"); // empty until the camera has been read
    waitFor([field] { return !field->text().isEmpty(); });
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
