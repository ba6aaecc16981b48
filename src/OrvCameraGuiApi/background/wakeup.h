// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QObject>

#include <functional>

namespace OrvGui {

/** Has an action run by the event loop of the thread that it was made on. */
class WakeUp : public QObject
{
public:
    explicit WakeUp(std::function<void()> action);

    /** The action runs at least once after each call; any thread. */
    void post();

    /** The action may destroy this. */
    bool event(QEvent *event) override;

private:
    const std::function<void()> m_action;
};

} // namespace OrvGui
