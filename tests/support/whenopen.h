// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QApplication>
#include <QWidget>
#include <QWindow>

#include <functional>

namespace OrvTest {

/**
 * Does something with the next modal window of that class, in the event loop that it runs, as soon as it is on the
 * screen. May be called before there is an application object.
 */
template <typename Window>
void whenOpen(const std::function<void(Window &)> &action)
{
    static QObject context;
    const auto attempt = [action] {
        auto *const window = qobject_cast<Window *>(QApplication::activeModalWidget());
        if (window && window->windowHandle()->isExposed())
            action(*window);
        else
            whenOpen(action);
    };
    QMetaObject::invokeMethod(&context, attempt, Qt::QueuedConnection);
}

} // namespace OrvTest
