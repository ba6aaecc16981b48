// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <GenApi/GenApi.h>

#include <QElapsedTimer>
#include <QHash>
#include <QObject>
#include <QPointer>
#include <QSet>
#include <QTimer>

class GenParamTreeModel;

/**
 * Notices which values change, by comparing those that are read anyway in order to be shown. It reads nothing itself,
 * so it knows nothing of values that nobody looks at.
 */
class ValueWatch : public QObject
{
    Q_OBJECT

public:
    explicit ValueWatch(QObject *parent);
    ~ValueWatch() override;

    /** Forgets everything. Null for none. */
    void setModel(GenParamTreeModel *model);

    /** Whether values are compared with the first that was read from now on. @{ */
    bool tracksChanges() const { return m_tracksChanges; }
    void setTracksChanges(bool on);
    /** @} */

    /** Whether a value is marked for a while when it differs from the one before. @{ */
    bool marks() const { return m_marks; }
    void setMarks(bool on);
    /** @} */

    /** Those whose value differs from the first. */
    const QSet<GenApi::IValue *> &changed() const { return m_changed; }

    /** From 1, just marked, to 0, not marked. */
    qreal strengthOf(GenApi::IValue *feature) const;

Q_SIGNALS:
    /** A value was read, or turned out not to be readable. Emitted while it is painted: rows must not change. */
    void compared(GenApi::IValue *feature);

    /** changed() has changed. Emitted later, from the event loop. */
    void changedFeaturesChanged();

    /** To be painted again where there are marks, or were. */
    void marksFaded();

private:
    struct Seen
    {
        QString first;
        QString last;
    };

    void observe();
    void note(GenApi::IValue *feature, const QString &value);
    void noteChange(GenApi::IValue *feature, bool isChanged);
    void tellSoon();
    void fade();

    QPointer<GenParamTreeModel> m_model;
    bool m_tracksChanges = false;
    bool m_marks = false;
    bool m_isTold = true; ///< false: changedFeaturesChanged() is queued
    QHash<GenApi::IValue *, Seen> m_seen;
    QSet<GenApi::IValue *> m_changed;
    QHash<GenApi::IValue *, qint64> m_marked; ///< when, in ms by the clock
    QElapsedTimer m_clock;
    QTimer m_timer; ///< runs while there are marks
};
