// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "picturethreads.h"

#include <QCoreApplication>
#include <QEvent>
#include <QPointer>

#include <atomic>
#include <endingthreads.h>
#include <map>
#include <memory>
#include <mutex>
#include <thread>
#include <utility>
#include <vector>

namespace {

/** A child of the application object, so that nothing runs when what libraries keep for the process goes. */
class PictureThreads : public QObject
{
public:
    using QObject::QObject;

    static PictureThreads &instance()
    {
        static QPointer<PictureThreads> threads;
        if (!threads)
            threads = new PictureThreads(QCoreApplication::instance());
        return *threads;
    }

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

    void run(QObject *context, std::function<std::function<void()>()> work)
    {
        const int id = ++m_lastId;
        m_contexts[id] = context;
        run([this, id, work = std::move(work)] { answer(id, work()); });
    }

protected:
    void customEvent(QEvent *) override
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        const std::vector<std::pair<int, std::function<void()>>> answers = std::exchange(m_answers, {});
        lock.unlock();
        for (const auto &[id, answer] : answers) {
            if (m_contexts.extract(id).mapped())
                answer();
        }
    }

private:
    /** On any thread. */
    void answer(int id, std::function<void()> answer)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_answers.emplace_back(id, std::move(answer));
        QCoreApplication::postEvent(this, new QEvent(QEvent::User));
    }

    int m_lastId = 0;
    std::map<int, QPointer<QObject>> m_contexts; ///< of the GUI thread only
    std::mutex m_mutex;
    std::vector<std::pair<int, std::function<void()>>> m_answers;
    OrvCameraApi::EndingThreads m_threads; // joined by its destructor, before the others go
};

} // namespace

void inPictureThread(std::function<void()> work)
{
    PictureThreads::instance().run(std::move(work));
}

void inPictureThread(QObject *context, std::function<std::function<void()>()> work)
{
    PictureThreads::instance().run(context, std::move(work));
}
