// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include "eventlog.h"

#include <QDockWidget>

class QComboBox;
class QLineEdit;
class QTreeView;

/** Shows the log, or those of its lines that have a text in them. */
class LogDock : public QDockWidget
{
    Q_OBJECT

public:
    explicit LogDock(QWidget *parent = nullptr);
    ~LogDock() override;

    EventLog &log() { return *m_log; }

    void saveTo(const QString &path);

Q_SIGNALS:
    /** A person wants to see the feature. */
    void featureChosen(const QString &name);

    /** Something for the user to know. */
    void told(const QString &message);

private:
    class Filter;

    void createBar(QWidget &bar);
    void createView();
    void updateFilter();
    void follow();
    QString shownText(bool selectedOnly) const;
    void askForFile();

    EventLog *const m_log;
    Filter *const m_filter;
    QLineEdit *const m_text;
    QComboBox *const m_level;
    QTreeView *const m_view;
    bool m_isAtEnd = true; ///< of the list: newer lines are shown
};
