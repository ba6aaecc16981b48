#include "picturethreads.h"

#include <QCoreApplication>
#include <QPointer>

#include <atomic>
#include <endingthreads.h>
#include <memory>
#include <thread>
#include <utility>

namespace {

/** A child of the application object, so that nothing runs when what libraries keep for the process goes. */
class PictureThreads : public QObject
{
public:
    using QObject::QObject;

    void run(std::function<void()> work)
    {
        auto hasEnded = std::make_shared<std::atomic<bool>>(false);
        std::thread thread([work = std::move(work), hasEnded]() mutable {
            work();
            work = nullptr;
            *hasEnded = true;
        });
        m_threads.add(std::move(thread), std::move(hasEnded));
    }

private:
    OrvCameraApi::EndingThreads m_threads; // joined by its destructor
};

} // namespace

void inPictureThread(std::function<void()> work)
{
    static QPointer<PictureThreads> threads;
    if (!threads)
        threads = new PictureThreads(QCoreApplication::instance());
    threads->run(std::move(work));
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
