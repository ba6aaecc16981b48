#pragma once

#include <GenApi/GenApi.h>

#include <QCoreApplication>
#include <QString>
#include <QVariant>

#include <optional>

/** What people read, in the translation context of the model. */
struct GenParamText
{
    Q_DECLARE_TR_FUNCTIONS(GenParamTreeModel)
};

/** A text of a node map. */
inline QString fromGenICam(const GenICam::gcstring &text)
{
    return QString::fromUtf8(text.c_str());
}

/** The node of \a value, which may be null; throws when there is none. */
GenApi::INode *nodeOf(GenApi::IValue *value);

/** Whether \a value, which may be null, is a category; throws nothing. */
bool isCategory(GenApi::IValue *value);

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
        // Whatever else a camera's library throws has no text for people.
    }
    return description.isEmpty() ? GenParamText::tr("Unknown Error") : description;
}

/**
 * One feature of a node map, as the feature tree shows and writes it. Made anew for each use; owns nothing.
 *
 * Except where it says otherwise an operation asks the node, which may read the device, and passes on what that throws.
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

    /** The node's name; asks nobody. */
    QString name() const { return QString::fromUtf8(m_name); }

    /** The node; throws when there is none. */
    GenApi::INode *node() const { return nodeOf(m_value); }

    GenApi::EAccessMode accessMode() const { return m_value ? m_value->GetAccessMode() : GenApi::NI; }
    GenApi::EInterfaceType type() const;

    /** How \a number, which is this feature, is shown. */
    GenApi::ERepresentation representation(GenApi::IInteger &number) const;

    /** The value as people read it, in \a type, which is type(); invalid where there is none. */
    QVariant displayText(GenApi::EInterfaceType type) const;

    /** The value as an editor takes it, in \a type, which is type(); invalid where there is none. */
    QVariant editValue(GenApi::EInterfaceType type) const;

    /**
     * Writes \a value, verified, or executes the command, whatever the value. False, and nothing written, when the
     * feature cannot be written or the value does not convert to its type.
     */
    bool write(const QVariant &value) const;

private:
    bool writeInteger(const QVariant &value) const;
    bool writeEnumeration(const QVariant &value) const;

    GenApi::IValue *m_value;
    const char *m_name;
    bool m_namesDecide;
};

/** Whether a value can be read or written in that mode. */
inline bool isReadable(GenApi::EAccessMode mode)
{
    return mode == GenApi::RO || mode == GenApi::RW;
}
inline bool isWritable(GenApi::EAccessMode mode)
{
    return mode == GenApi::WO || mode == GenApi::RW;
}

/** The digits to show of a floating-point feature, within what Qt can format. */
int displayPrecision(const GenApi::IFloat &value);
