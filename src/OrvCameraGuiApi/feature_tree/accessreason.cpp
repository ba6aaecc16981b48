#include <OrvCameraGuiApi/feature_tree/accessreason.h>

#include <OrvCameraGuiApi/feature_tree/genparamfeature.h>

#include <QUrl>

#include <algorithm>
#include <vector>

using GenApi::INode;

namespace {

constexpr size_t mostNodes = 200; ///< that are looked at for one feature

/** The nodes that a property of \a node names, which has none, one or several. */
std::vector<INode *> linked(INode &node, const char *property)
{
    std::vector<INode *> nodes;
    failureOf([&] {
        GenICam::gcstring names;
        GenICam::gcstring attributes;
        if (!node.GetProperty(property, names, attributes))
            return;
        const auto list = fromGenICam(names).split(QLatin1Char('\t'), Qt::SkipEmptyParts);
        for (const QString &name : list) {
            if (INode *const found = node.GetNodeMap()->GetNode(name.toUtf8().constData()))
                nodes.push_back(found);
        }
    });
    return nodes;
}

/** Whether the value of \a node is \a wanted, as a condition; false also when it cannot tell. */
bool is(INode *node, bool wanted)
{
    bool matches = false;
    failureOf([&] {
        if (const GenApi::CBooleanPtr boolean(node); boolean.IsValid())
            matches = boolean->GetValue() == wanted;
        else if (const GenApi::CIntegerPtr integer(node); integer.IsValid())
            matches = (integer->GetValue() != 0) == wanted;
        else if (const GenApi::CEnumerationPtr choice(node); choice.IsValid())
            matches = (choice->GetIntValue() != 0) == wanted;
    });
    return matches;
}

GenApi::EAccessMode modeOf(const INode &node)
{
    GenApi::EAccessMode mode = GenApi::RW;
    failureOf([&] { mode = node.GetAccessMode(); });
    return mode;
}

/** Calls \a visit with \a first and the nodes that \a next finds from there, until it returns true. */
template <typename Next, typename Visit>
bool search(INode *first, Next next, Visit visit)
{
    std::vector<INode *> found{first};
    for (size_t i = 0; i < found.size(); ++i) {
        if (visit(*found[i]))
            return true;
        for (INode *const node : next(*found[i])) {
            if (found.size() < mostNodes && std::find(found.begin(), found.end(), node) == found.end())
                found.push_back(node);
        }
    }
    return false;
}

std::vector<INode *> targetsOf(INode &node)
{
    std::vector<INode *> targets;
    for (const char *const property : {"pValue", "pValueIndexed", "pValueDefault", "pValueCopy"}) {
        const std::vector<INode *> nodes = linked(node, property);
        targets.insert(targets.end(), nodes.begin(), nodes.end());
    }
    return targets;
}

std::vector<INode *> readBy(const INode &node)
{
    GenApi::NodeList_t nodes;
    failureOf([&] { node.GetChildren(nodes, GenApi::ctReadingChildren); });
    std::vector<INode *> read;
    for (INode *const child : nodes)
        read.push_back(child);
    return read;
}

/** The standard feature that cameras lock others with during the acquisition, possibly by way of formulas. */
bool isLockOfAcquisition(INode *condition)
{
    return search(condition, readBy, [](INode &node) {
        GenICam::gcstring name;
        failureOf([&] { name = node.GetName(); });
        return name == "TLParamsLocked" && is(&node, true);
    });
}

} // namespace

AccessReason::AccessReason(GenApi::IValue *feature)
{
    failureOf([&] {
        INode *const node = feature ? nodeOf(feature) : nullptr;
        const GenApi::EInterfaceType type = node ? node->GetPrincipalInterfaceType() : GenApi::intfICategory;
        if (type != GenApi::intfICategory && type != GenApi::intfIPort && !isWritable(node->GetAccessMode()))
            find(*node);
    });
}

void AccessReason::find(INode &feature)
{
    const GenApi::EAccessMode mode = feature.GetAccessMode();
    m_kind = mode == GenApi::NI ? Kind::NotImplemented : mode == GenApi::NA ? Kind::NotAvailable : Kind::ReadOnly;
    search(&feature, targetsOf, [this](INode &node) {
        const GenApi::EAccessMode its = modeOf(node);
        return !isWritable(its) && findCondition(node, its);
    });
}

/** Whether \a node, which cannot be written, has a condition of its own that says so. */
bool AccessReason::findCondition(INode &node, GenApi::EAccessMode mode)
{
    struct Condition
    {
        const char *property;
        bool forbids; ///< the value that does
        bool appliesTo; ///< this mode
        Kind kind;
    };
    const Condition conditions[] = {
        {"pIsImplemented", false, mode == GenApi::NI, Kind::NotImplemented},
        {"pIsAvailable", false, mode == GenApi::NA, Kind::NotAvailable},
        {"pIsLocked", true, mode == GenApi::NA || mode == GenApi::RO, Kind::Locked},
    };
    for (const Condition &condition : conditions) {
        if (!condition.appliesTo)
            continue;
        for (INode *const link : linked(node, condition.property)) {
            if (!is(link, condition.forbids))
                continue;
            m_kind =
                condition.kind == Kind::Locked && isLockOfAcquisition(link) ? Kind::AcquisitionRuns : condition.kind;
            failureOf([&] { m_culprit = fromGenICam(link->GetName()); });
            return true;
        }
    }
    return false;
}

QString AccessReason::sentence(const QString &culprit) const
{
    switch (m_kind) {
    case Kind::None:
        break;
    case Kind::NotImplemented:
        return culprit.isEmpty() ? tr("not implemented by the camera") : tr("not implemented, says %1").arg(culprit);
    case Kind::NotAvailable:
        return culprit.isEmpty() ? tr("not available now") : tr("not available now because of %1").arg(culprit);
    case Kind::Locked:
        return tr("locked by %1").arg(culprit);
    case Kind::AcquisitionRuns:
        return tr("the acquisition is running (%1)").arg(culprit);
    case Kind::ReadOnly:
        return tr("the camera lets it be read only");
    }
    return {};
}

QString AccessReason::text() const
{
    return sentence(m_culprit);
}

QString AccessReason::html() const
{
    if (m_kind == Kind::None)
        return {};
    const QString link = QStringLiteral("<a href=\"feature:%1\">%2</a>")
                             .arg(QString::fromLatin1(QUrl::toPercentEncoding(m_culprit)), m_culprit.toHtmlEscaped());
    return tr("<i>Not writable:</i> %1").arg(sentence(m_culprit.isEmpty() ? QString() : link));
}
