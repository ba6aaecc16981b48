// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

// Two threads and a number without anything between them: what the thread sanitizer has to find, whatever it is kept
// from looking at elsewhere.

#include <QApplication>
#include <QEvent>
#include <QTimer>

#include <thread>

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    int number = 0;
    QObject receiver;
    std::thread other([&] {
        QCoreApplication::postEvent(&receiver, new QEvent(QEvent::User)); // unseen, unlike what follows
        for (int i = 0; i < 1000; ++i)
            ++number;
    });
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &timer, [&number] { ++number; });
    timer.start(0);
    QTimer::singleShot(50, &app, &QApplication::quit);
    const int result = QApplication::exec();
    other.join();
    return result;
}
