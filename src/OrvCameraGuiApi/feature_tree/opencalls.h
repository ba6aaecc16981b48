#pragma once

#include <QObject>

/**
 * When the feature tree frees its models: never while a call into them is on the stack.
 *
 * Whatever asks a node may end in foreign code, a callback or a port, and that may do anything: take the node map from
 * the view, destroy the view, run an event loop. Callbacks and node map are let go at once then, but the objects are
 * still in use by those who called them, and deferred deletion alone does not spare them: the event loop that runs
 * inside the call would carry it out. So every such call is marked by a Call, and what is given up meanwhile is handed
 * to deferred deletion only when the outermost of them has ended. Those who have called it, Qt's views among them, have
 * returned too when the event loop runs next.
 *
 * For each thread by itself; models are used by one.
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

    /** Whether a call is on the stack. */
    static bool any();

    /** Deletes \a object, which may be null, as told above. Until then nothing but that may come to it. */
    static void retire(QObject *object);
};
