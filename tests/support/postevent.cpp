// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

// Qt comes without the thread sanitizer, which therefore sees nothing of the lock that guards a thread's list of posted
// events, only how events move in the list. This function stands before Qt's own in programs that are built with the
// sanitizer, and has it look away while Qt posts. Nothing of ours runs meanwhile.

#include <QCoreApplication>

#include <dlfcn.h>

extern "C" {
void AnnotateIgnoreReadsBegin(const char *file, int line);
void AnnotateIgnoreReadsEnd(const char *file, int line);
void AnnotateIgnoreWritesBegin(const char *file, int line);
void AnnotateIgnoreWritesEnd(const char *file, int line);
}

void QCoreApplication::postEvent(QObject *receiver, QEvent *event, int priority)
{
    using Post = void (*)(QObject *, QEvent *, int);
    static const auto post =
        reinterpret_cast<Post>(::dlsym(RTLD_NEXT, "_ZN16QCoreApplication9postEventEP7QObjectP6QEventi"));
    AnnotateIgnoreReadsBegin(__FILE__, __LINE__);
    AnnotateIgnoreWritesBegin(__FILE__, __LINE__);
    post(receiver, event, priority);
    AnnotateIgnoreWritesEnd(__FILE__, __LINE__);
    AnnotateIgnoreReadsEnd(__FILE__, __LINE__);
}
