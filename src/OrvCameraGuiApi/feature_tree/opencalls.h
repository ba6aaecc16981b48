// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QObject>

/**
 * The lifetime rule of the feature tree, and the means to keep it.
 *
 * Every access to a node may run foreign code: a callback, a port, a slot of the application. That code may take the
 * node map from the view, destroy the view or run an event loop. Functions of the tree and of Qt's views are on the
 * stack meanwhile, and go on with models, rows and editors when it returns. Therefore:
 *
 * - The tree lets go of callbacks and node map at once.
 * - A function by which others enter the tree holds a Call while it accesses nodes or changes rows.
 * - Models, selections, editors and the view of the C functions are given up by retire(), not by delete. They are
 *   deleted by the event loop when the outermost Call has ended. Qt's views have returned by then as well. Deferred
 *   deletion alone is too early: an event loop inside the call carries it out.
 * - After an access a function checks again whatever it goes on with: model, editor and view by QPointer or by
 *   comparison, a row by QPersistentModelIndex.
 * - A C++ program does not delete the view inside a call; QObject::deleteLater() is for that.
 *
 * Calls are counted for each thread by itself; a model is used by one thread.
 */
class OpenCalls
{
public:
    class Call
    {
    public:
        Call();
        ~Call();
        Q_DISABLE_COPY(Call)
    };

    /** Whether a Call is on the stack. */
    static bool any();

    /** Deletes \a object, which may be null, when no Call is on the stack. Nobody else may delete it any more. */
    static void retire(QObject *object);
};
