#include "picturethreads.h"

#include <QCoreApplication>
#include <QPointer>
#include <QThreadPool>

#include <limits>
#include <utility>

/**
 * The pool is a child of the application object: it is waited for before what libraries keep until the end of the
 * process goes.
 */
void inPictureThread(std::function<void()> work)
{
    static QPointer<QThreadPool> pool;
    if (!pool) {
        pool = new QThreadPool(QCoreApplication::instance());
        pool->setMaxThreadCount(std::numeric_limits<int>::max()); // one that waits for a camera keeps nobody
    }
    pool->start(QRunnable::create(std::move(work)));
}

void inPictureThread(QObject *context, std::function<std::function<void()>()> work)
{
    QCoreApplication *const app = QCoreApplication::instance();
    inPictureThread([app, guard = QPointer<QObject>(context), work = std::move(work)] {
        const auto answer = [guard, answer = work()] {
            if (guard)
                answer();
        };
        QMetaObject::invokeMethod(app, answer, Qt::QueuedConnection);
    });
}
