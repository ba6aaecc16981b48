// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <GenApi/GenApi.h>

#include <QCoreApplication>
#include <QString>
#include <QStringList>

/**
 * Why a feature cannot be written, out of the links between the nodes: its own conditions, or those of a node that its
 * value goes to. Found out when it is made, which may read the registers behind the conditions; throws nothing.
 */
class AccessReason
{
    Q_DECLARE_TR_FUNCTIONS(AccessReason)

public:
    /** \a feature may be null. */
    explicit AccessReason(GenApi::IValue *feature);

    /** Plain text; empty for a feature that can be written, and where writing is nothing that people do. */
    QString text() const;

    /** The same as a line of a help text, with the names of features as links to "feature:NAME". */
    QString html() const;

private:
    enum class Kind { None, NotImplemented, NotAvailable, Locked, AcquisitionRuns, ReadOnly };

    void find(GenApi::INode &feature);
    void blame(GenApi::INode &condition);
    bool findCondition(GenApi::INode &node, GenApi::EAccessMode mode);
    QString sentence(const QString &culprit) const;

    Kind m_kind = Kind::None;
    QStringList m_culprits; ///< the names of those that decide, as far as they are known
    bool m_areLinks = false; ///< whether they are features
};
