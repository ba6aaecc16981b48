// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QProcess>
#include <QStandardPaths>
#include <QString>
#include <QStringList>

#include <csignal>
#include <utility>

namespace OrvTest {

/** Another program that stands for a GigE Vision camera at 127.0.0.1; Debian's package aravis-tools has it. */
class FakeCamera
{
public:
    static constexpr const char *address = "127.0.0.1";

    static bool isInstalled() { return !QStandardPaths::findExecutable(program()).isEmpty(); }

    /** \a options besides that for its address. */
    explicit FakeCamera(QStringList options = {})
        : m_options(std::move(options))
    {
        start();
    }
    ~FakeCamera() { kill(); }

    void start()
    {
        m_process.start(program(), QStringList{QStringLiteral("-i"), QString::fromLatin1(address)} + m_options);
        m_process.waitForStarted();
    }

    void kill()
    {
        m_process.kill();
        m_process.waitForFinished();
    }

    /** While stopped it answers nothing; the system keeps what is sent to it. */
    void stop() { ::kill(pid_t(m_process.processId()), SIGSTOP); }
    void goOn() { ::kill(pid_t(m_process.processId()), SIGCONT); }

private:
    static QString program() { return QStringLiteral("arv-fake-gv-camera-0.8"); }

    const QStringList m_options;
    QProcess m_process;
};

} // namespace OrvTest
