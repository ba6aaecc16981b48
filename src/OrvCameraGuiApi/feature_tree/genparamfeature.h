// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <GenApi/GenApi.h>

#include <QCoreApplication>
#include <QString>
#include <QVariant>

#include <optional>

namespace OrvGenParam {
class Array;
}

/** Texts that people read, in the translation context of the model. */
struct GenParamText
{
    Q_DECLARE_TR_FUNCTIONS(GenParamTreeModel)

public:
    static QString truth(bool value) { return value ? tr("True") : tr("False"); }
};

/** A text of a node map. */
inline QString fromGenICam(const GenICam::gcstring &text)
{
    return QString::fromUtf8(text.c_str());
}

/** The node of \a value, which may be null; throws when there is none. */
GenApi::INode *nodeOf(GenApi::IValue *value);

/** The node map behind \a params, which may be null; null when it has none. Throws nothing. */
GenApi::INodeMap *nodeMapOf(OrvGenParam::Array *params);

/** Whether \a value, which may be null, is a category; throws nothing. */
bool isCategory(GenApi::IValue *value);

/** Whether the value of \a feature, which may be null, can be read; true also when GenApi cannot answer. */
bool canRead(GenApi::IValue *feature);

/** The integer nearest to \a value; none when it is no number or does not fit into 64 bits. */
std::optional<qint64> toInteger(const QVariant &value);

/** Runs \a action; the text for people about what it threw, never empty, or nothing when it went well. */
template <typename Action>
std::optional<QString> failureOf(Action &&action)
{
    QString description;
    try {
        action();
        return std::nullopt;
    } catch (const GenICam::GenericException &exception) {
        description = QString::fromUtf8(exception.GetDescription());
    } catch (...) {
        // Anything else that a camera's library throws has no text for people.
    }
    return description.isEmpty() ? GenParamText::tr("Unknown Error") : description;
}

/**
 * One feature of a node map, as the feature tree knows it. Created for each use; owns nothing. How it is shown, edited
 * and written depends on its type: FeatureHandler.
 *
 * Except where it says otherwise, an operation asks the node and passes on the exceptions of GenApi.
 */
class GenParamFeature
{
public:
    /**
     * \a value may be null: such a feature is not implemented. \a name is the node's name, UTF-8, not null, and has to
     * outlive this object. With \a namesDecide the usual address features are shown as addresses whatever their
     * description says.
     */
    GenParamFeature(GenApi::IValue *value, const char *name, bool namesDecide)
        : m_value(value)
        , m_name(name)
        , m_namesDecide(namesDecide)
    {
    }

    GenApi::IValue *value() const { return m_value; }

    /** The node's name. Neither asks the node. @{ */
    QString name() const { return QString::fromUtf8(m_name); }
    const char *utf8Name() const { return m_name; }
    /** @} */

    bool namesDecide() const { return m_namesDecide; }

    /** The node; throws when there is none. */
    GenApi::INode *node() const { return nodeOf(m_value); }

    GenApi::EAccessMode accessMode() const { return m_value ? m_value->GetAccessMode() : GenApi::NI; }

    /** The principal interface type; intfIBase without a value. */
    GenApi::EInterfaceType type() const;

private:
    GenApi::IValue *m_value;
    const char *m_name;
    bool m_namesDecide;
};

/** Whether a value can be read or written in that mode. @{ */
inline bool isReadable(GenApi::EAccessMode mode)
{
    return mode == GenApi::RO || mode == GenApi::RW;
}
inline bool isWritable(GenApi::EAccessMode mode)
{
    return mode == GenApi::WO || mode == GenApi::RW;
}
/** @} */
