// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QAbstractScrollArea>
#include <QCoreApplication>
#include <QEvent>
#include <QTimer>

#include <cstdlib>

/** Ends the process, without any clean-up, as soon as \a view has been painted. */
class EndWhenPainted : public QObject
{
public:
    explicit EndWhenPainted(QAbstractScrollArea *view)
        : QObject(view)
    {
        view->viewport()->installEventFilter(this);
    }

    bool eventFilter(QObject *, QEvent *event) override
    {
        // What is painted reaches the window before the next event is taken.
        if (event->type() == QEvent::Paint)
            QTimer::singleShot(0, [] { std::_Exit(0); });
        return false;
    }
};
