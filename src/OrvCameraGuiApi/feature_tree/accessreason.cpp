// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/feature_tree/accessreason.h>

#include <OrvCameraGuiApi/feature_tree/genparamfeature.h>
#include <OrvCameraGuiApi/feature_tree/nodelinks.h>

#include <QUrl>

#include <algorithm>
#include <vector>

using GenApi::INode;

namespace {

constexpr int mostCulprits = 3; ///< that one line names

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

/** Where the index of \a node leads now; nothing if it has none. */
std::vector<INode *> indexedBy(INode &node)
{
    const std::vector<INode *> index = linked(node, "pIndex");
    if (index.empty())
        return {};
    QString now;
    failureOf([&] { now = QString::number(GenApi::CIntegerPtr(index.front())->GetValue()); });
    GenICam::gcstring names;
    GenICam::gcstring indexes;
    failureOf([&] { node.GetProperty("pValueIndexed", names, indexes); });
    const QStringList texts = fromGenICam(indexes).split(QLatin1Char('\t'));
    const std::vector<INode *> targets = linked(node, "pValueIndexed");
    const auto at = texts.indexOf(now);
    if (at >= 0 && size_t(at) < targets.size())
        return {targets[size_t(at)]};
    return linked(node, "pValueDefault");
}

std::vector<INode *> targetsOf(INode &node)
{
    std::vector<INode *> targets = indexedBy(node);
    for (const char *const property : {"pValue", "pValueCopy"}) {
        const std::vector<INode *> nodes = linked(node, property);
        targets.insert(targets.end(), nodes.begin(), nodes.end());
    }
    return targets;
}

/** What a condition depends on in the end: a feature, or what reads nothing else but the camera. */
struct Source
{
    INode *node;
    QString name;
    bool isFeature; ///< that people can go to
};

/** The standard feature that cameras lock others with during the acquisition; some do not list it. */
bool isLockOfAcquisition(const Source &source)
{
    return source.name == QLatin1String("TLParamsLocked");
}

/** Like NodeLinks::readBy(), without the port, which all registers have. */
std::vector<INode *> valuesReadBy(INode &node)
{
    std::vector<INode *> nodes = NodeLinks::readBy(node);
    const auto isPort = [](const INode *read) {
        bool is = false;
        failureOf([&] { is = read->GetPrincipalInterfaceType() == GenApi::intfIPort; });
        return is;
    };
    nodes.erase(std::remove_if(nodes.begin(), nodes.end(), isPort), nodes.end());
    return nodes;
}

std::vector<Source> sourcesOf(INode *condition)
{
    std::vector<Source> sources;
    const auto next = [&](INode &node) {
        Source source{&node, QString(), false};
        failureOf([&] { source.name = fromGenICam(node.GetName()); });
        failureOf([&] { source.isFeature = node.IsFeature(); });
        const bool isSource = source.isFeature || isLockOfAcquisition(source);
        std::vector<INode *> read = isSource ? std::vector<INode *>() : valuesReadBy(node);
        if (read.empty())
            sources.push_back(source);
        return read;
    };
    NodeLinks::search(condition, next, [](INode &) { return false; });
    return sources;
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
    NodeLinks::search(&feature, targetsOf, [this](INode &node) {
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
            m_kind = condition.kind;
            blame(*link);
            return true;
        }
    }
    return false;
}

/** Names the features that \a condition depends on; the condition itself if it depends on none. */
void AccessReason::blame(INode &condition)
{
    const std::vector<Source> sources = sourcesOf(&condition);
    if (m_kind == Kind::Locked && sources.size() == 1 && isLockOfAcquisition(sources.front())
        && is(sources.front().node, true)) {
        m_kind = Kind::AcquisitionRuns;
    }
    for (const Source &source : sources) {
        if (source.isFeature && m_culprits.size() < mostCulprits)
            m_culprits += source.name;
    }
    m_areLinks = !m_culprits.isEmpty();
    if (!m_areLinks)
        failureOf([&] { m_culprits += fromGenICam(condition.GetName()); });
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
    return sentence(m_culprits.join(QLatin1String(", ")));
}

QString AccessReason::html() const
{
    if (m_kind == Kind::None)
        return {};
    QStringList names;
    for (const QString &name : m_culprits) {
        const QString shown = name.toHtmlEscaped();
        const QString link = QStringLiteral("<a href=\"feature:%1\">%2</a>");
        names += m_areLinks ? link.arg(QString::fromLatin1(QUrl::toPercentEncoding(name)), shown) : shown;
    }
    return tr("<i>Not writable:</i> %1").arg(sentence(names.join(QLatin1String(", "))));
}
