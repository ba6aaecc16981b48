// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QDialog>
#include <QStringList>
#include <QVector>

class QPushButton;
class QTreeView;

/** A line of a report. */
struct ReportRow
{
    QString feature; ///< that a person can be led to; empty for none
    QStringList cells;
};

/** A list of what became of settings, to be read, copied and followed to the features. */
class SettingsReport : public QDialog
{
    Q_OBJECT

public:
    SettingsReport(const QString &title, const QString &summary, const QStringList &columns, QVector<ReportRow> rows,
                   QWidget *parent);

    /** A button that undoes what the report is about, once. */
    void offerPutBack();

    /** The camera is no longer there to be put back. */
    void withdrawPutBack();

    /** It cannot be put back while it is lost. */
    void setReachable(bool reachable);

Q_SIGNALS:
    /** A person wants to see the feature. */
    void featureChosen(const QString &name);

    void putBackWanted();

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void copy();
    void choose(const QModelIndex &index);

    QTreeView *const m_view;
    QPushButton *const m_putBack;
    bool m_canPutBack = false;
};
