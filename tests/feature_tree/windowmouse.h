// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QWidget>
#include <QWindow>
#include <QtTest>

/** The mouse as the window system reports it: events find their widget and grab it as they do for a user. */
namespace WindowMouse {

/** \a pos is in \a widget's coordinates. */
inline void press(QWidget *widget, const QPoint &pos, Qt::MouseButton button = Qt::LeftButton)
{
    QTest::mousePress(widget->window()->windowHandle(), button, {}, widget->mapTo(widget->window(), pos));
}

inline void move(QWidget *widget, const QPoint &pos)
{
    QTest::mouseMove(widget->window()->windowHandle(), widget->mapTo(widget->window(), pos));
}

inline void release(QWidget *widget, const QPoint &pos, Qt::MouseButton button = Qt::LeftButton)
{
    QTest::mouseRelease(widget->window()->windowHandle(), button, {}, widget->mapTo(widget->window(), pos));
}

inline void click(QWidget *widget, const QPoint &pos)
{
    press(widget, pos);
    release(widget, pos);
}

} // namespace WindowMouse
