#pragma once

#include <GenApi/GenApi.h>

#include <QCoreApplication>
#include <QString>

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

    /** The same as a line of a help text, with names as links to "feature:NAME". */
    QString html() const;

private:
    enum class Kind { None, NotImplemented, NotAvailable, Locked, AcquisitionRuns, ReadOnly };

    void find(GenApi::INode &feature);
    bool findCondition(GenApi::INode &node, GenApi::EAccessMode mode);
    QString sentence(const QString &culprit) const;

    Kind m_kind = Kind::None;
    QString m_culprit; ///< the name of the node that says so, if known
};
