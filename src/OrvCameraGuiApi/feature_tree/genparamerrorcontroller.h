// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QMap>
#include <QString>

/**
 * Bookkeeping of failed reads and writes: for every feature name the message of each item role that failed.
 *
 * A name is present only while one of its roles has a message. Used by one thread.
 */
class GenParamErrorController
{
public:
    /**
     * Records the failure of \a role of the feature \a name. True when it is new; a message that is already there for
     * the pair is intentionally kept and \a message dropped, so that the first failure is the one people read.
     */
    bool SetError(const QString &name, const QString &message, int role);

    /** Removes the message of the pair; true when there was one. */
    bool ClearError(const QString &name, int role);

    /** All messages, one line "{name}{id:role}: message " each, ascending by name, then by role; may be empty. */
    QString GetErrorInfo() const;

    /** Whether any feature has a failure. */
    bool hasErrors() const { return !m_errors.isEmpty(); }

    /** Whether that feature has one, in whatever role. */
    bool hasError(const QString &name) const { return m_errors.contains(name); }

    /** Whether that role of the feature has one. */
    bool hasError(const QString &name, int role) const { return m_errors.value(name).contains(role); }

    /** The message of the feature's lowest failed role; a null text when none failed. */
    QString firstMessage(const QString &name) const;

private:
    QMap<QString, QMap<int, QString>> m_errors;
};
