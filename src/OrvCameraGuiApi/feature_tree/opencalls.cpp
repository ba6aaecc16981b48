// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/feature_tree/opencalls.h>

#include <QPointer>

#include <utility>
#include <vector>

namespace {

// Constants to begin with, so that counting a call needs no look whether they exist already: every change of a feature
// counts several.
thread_local int calls = 0;
thread_local bool hasRetired = false; ///< whether retired() has any

/** To be deleted when the calls have ended. */
std::vector<QPointer<QObject>> &retired()
{
    static thread_local std::vector<QPointer<QObject>> retired;
    return retired;
}

void deleteRetired()
{
    hasRetired = false;
    const auto objects = std::exchange(retired(), {});
    for (const QPointer<QObject> &object : objects) {
        if (object)
            object->deleteLater();
    }
}

} // namespace

OpenCalls::Call::Call()
{
    ++calls;
}

OpenCalls::Call::~Call()
{
    if (--calls == 0 && hasRetired)
        deleteRetired();
}

bool OpenCalls::any()
{
    return calls > 0;
}

void OpenCalls::retire(QObject *object)
{
    if (!object)
        return;
    if (!any()) {
        object->deleteLater();
        return;
    }
    retired().emplace_back(object);
    hasRetired = true;
}
