// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "featuremap.h"

#include "valuetext.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>
#include <exception>
#include <unordered_set>

using GenApi::INode;

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(Settings)
};

GenICam::gcstring asGenApi(const QByteArray &text)
{
    return {text.constData(), std::size_t(text.size())};
}

QByteArray plain(const GenICam::gcstring &text)
{
    return {text.c_str(), int(text.length())};
}

bool hasValue(INode *node)
{
    switch (kindOf(node)) {
    case GenApi::intfIInteger:
    case GenApi::intfIBoolean:
    case GenApi::intfIFloat:
    case GenApi::intfIString:
    case GenApi::intfIRegister:
    case GenApi::intfIEnumeration:
        return dynamic_cast<GenApi::IValue *>(node) != nullptr;
    default:
        return false;
    }
}

GenApi::EAccessMode accessOf(INode *node)
{
    GenApi::EAccessMode mode = GenApi::NA;
    failureOf([&] { mode = node->GetAccessMode(); });
    return mode;
}

std::vector<INode *> asNodes(const GenApi::FeatureList_t &features)
{
    std::vector<INode *> nodes;
    for (GenApi::IValue *feature : features) {
        INode *node = nullptr;
        failureOf([&] { node = feature ? feature->GetNode() : nullptr; });
        if (node)
            nodes.push_back(node);
    }
    return nodes;
}

std::vector<INode *> selecting(INode *node)
{
    GenApi::FeatureList_t features;
    failureOf([&] {
        if (const auto *selector = dynamic_cast<GenApi::ISelector *>(node))
            selector->GetSelectingFeatures(features);
    });
    return asNodes(features);
}

void addSelectors(INode *node, std::vector<INode *> &path, std::vector<INode *> &found)
{
    constexpr std::size_t deepest = 20; // against descriptions that lead nowhere
    if (path.size() > deepest)
        return;
    path.push_back(node);
    for (INode *selector : selecting(node)) {
        const bool isKnown = std::find(found.begin(), found.end(), selector) != found.end();
        if (isKnown || std::find(path.begin(), path.end(), selector) != path.end())
            continue;
        addSelectors(selector, path, found);
        found.push_back(selector);
    }
    path.pop_back();
}

/** The features in the order of the tree. */
std::vector<INode *> featuresInTree(GenApi::INodeMap &map)
{
    std::vector<INode *> features;
    std::unordered_set<INode *> seen;
    std::vector<INode *> open;
    failureOf([&] { open.push_back(map.GetNode("Root")); });
    while (!open.empty()) {
        INode *const node = open.back();
        open.pop_back();
        if (!node || !seen.insert(node).second)
            continue;
        features.push_back(node);
        GenApi::FeatureList_t below;
        failureOf([&] {
            if (const auto *category = dynamic_cast<GenApi::ICategory *>(node))
                category->GetFeatures(below);
        });
        const std::vector<INode *> children = asNodes(below);
        open.insert(open.end(), children.rbegin(), children.rend());
    }
    return features;
}

/** What a node's value depends on. A selector and what it selects depend on each other: they stay together. */
std::vector<INode *> dependenciesOf(INode *node)
{
    GenApi::NodeList_t read;
    GenApi::FeatureList_t selected;
    failureOf([&] { node->GetChildren(read, GenApi::ctReadingChildren); });
    failureOf([&] {
        if (const auto *selector = dynamic_cast<GenApi::ISelector *>(node))
            selector->GetSelectedFeatures(selected);
    });
    std::vector<INode *> nodes = asNodes(selected);
    std::copy_if(read.begin(), read.end(), std::back_inserter(nodes), [](INode *child) { return child != nullptr; });
    const std::vector<INode *> selectors = selecting(node);
    nodes.insert(nodes.end(), selectors.begin(), selectors.end());
    return nodes;
}

/**
 * Numbers nodes so that none depends on one with a higher number; nodes that depend on each other have the same
 * (Tarjan's strongly connected components, without recursion: descriptions may be deep).
 */
class DependencyRanks
{
public:
    void visit(INode *start)
    {
        if (m_states.count(start) == 0)
            enter(start);
        while (!m_path.empty()) {
            Step &step = m_path.back();
            if (step.next < step.dependencies.size())
                follow(step.dependencies[step.next++]);
            else
                leave();
        }
    }

    int rankOf(INode *node) const { return m_states.at(node).rank; }

private:
    struct State
    {
        int number = 0;
        int lowest = 0; ///< number that it leads to
        int rank = -1; ///< none yet
    };

    struct Step
    {
        INode *node;
        std::vector<INode *> dependencies;
        std::size_t next = 0;
    };

    void enter(INode *node)
    {
        const int number = int(m_states.size());
        m_states[node] = {number, number, -1};
        m_open.push_back(node);
        m_path.push_back({node, dependenciesOf(node)});
    }

    void follow(INode *dependency)
    {
        const auto known = m_states.find(dependency);
        if (known == m_states.end())
            enter(dependency);
        else if (known->second.rank < 0)
            lower(m_path.back().node, known->second.number);
    }

    void lower(INode *node, int number)
    {
        int &lowest = m_states[node].lowest;
        lowest = std::min(lowest, number);
    }

    void leave()
    {
        INode *const node = m_path.back().node;
        const State state = m_states[node];
        m_path.pop_back();
        if (!m_path.empty())
            lower(m_path.back().node, state.lowest);
        if (state.lowest != state.number)
            return;
        for (INode *member = nullptr; member != node;) {
            member = m_open.back();
            m_open.pop_back();
            m_states[member].rank = m_ranks;
        }
        ++m_ranks;
    }

    std::unordered_map<INode *, State> m_states;
    std::vector<INode *> m_open; ///< of no rank yet
    std::vector<Step> m_path;
    int m_ranks = 0;
};

} // namespace

QString failureOf(const std::function<void()> &operation)
{
    QString why;
    try {
        operation();
        return {};
    } catch (const GenICam::GenericException &e) {
        why = QString::fromUtf8(e.GetDescription());
    } catch (const std::exception &e) {
        why = QString::fromLocal8Bit(e.what());
    } catch (...) {
        // It has no text.
    }
    why = why.simplified();
    return why.isEmpty() ? Text::tr("It failed without a reason.") : why;
}

FeatureMap::FeatureMap(GenApi::INodeMap &map)
    : m_map(map)
{
}

INode *FeatureMap::feature(const QByteArray &name)
{
    INode *node = nullptr;
    failureOf([&] {
        node = m_map.GetNode(asGenApi(name));
        if (node && !(node->IsFeature() && hasValue(node)))
            node = nullptr;
    });
    return node;
}

const std::vector<INode *> &FeatureMap::selectorsOf(INode *feature)
{
    const auto known = m_selectors.find(feature);
    if (known != m_selectors.end())
        return known->second;
    std::vector<INode *> found;
    std::vector<INode *> path;
    addSelectors(feature, path, found);
    return m_selectors[feature] = found;
}

QVector<Setting> FeatureMap::withSelectors(const Setting &setting)
{
    Setting plain = setting;
    INode *const node = setting.value.startsWith('{') ? feature(setting.name) : nullptr;
    QVector<Setting> settings = takeSelectors(plain, [&](const QByteArray &name) {
        const std::vector<INode *> selectors = node ? selectorsOf(node) : std::vector<INode *>();
        return std::any_of(selectors.begin(), selectors.end(), [&](INode *each) { return nameOf(each) == name; });
    });
    settings.append(plain);
    return settings;
}

QByteArray FeatureMap::keyOf(const QByteArray &name, const QVector<Setting> &context)
{
    QByteArray key = name;
    for (const Setting &setting : context) {
        INode *const selector = feature(setting.name);
        key += '\0' + setting.name + '\0' + (selector ? normalValue(setting.value, kindOf(selector)) : setting.value);
    }
    return key;
}

std::vector<INode *> FeatureMap::features() const
{
    std::vector<INode *> features = featuresInTree(m_map);
    features.erase(std::remove_if(features.begin(), features.end(), [](INode *node) { return !hasValue(node); }),
                   features.end());
    return features;
}

std::vector<INode *> FeatureMap::streamableFeatures()
{
    return featuresThat(isStreamable);
}

std::vector<INode *> FeatureMap::otherFeatures()
{
    return featuresThat([](INode *node) { return kindOf(node) != GenApi::intfIRegister && !isOfConnection(node); });
}

std::vector<INode *> FeatureMap::featuresThat(bool (*belong)(INode *))
{
    std::vector<INode *> found;
    for (INode *feature : features()) {
        if (belong(feature))
            found.push_back(feature);
    }
    DependencyRanks ranks;
    for (INode *feature : found)
        ranks.visit(feature);
    std::stable_sort(found.begin(), found.end(),
                     [&ranks](INode *left, INode *right) { return ranks.rankOf(left) < ranks.rankOf(right); });
    return found;
}

QString FeatureMap::device() const
{
    QString text;
    failureOf([&] {
        auto *const info = dynamic_cast<GenApi::IDeviceInfo *>(&m_map);
        if (!info)
            return;
        GenICam::Version_t version{};
        info->GetDeviceVersion(version);
        text =
            QStringLiteral("%1::%2 -- Device version = %3.%4.%5")
                .arg(QString::fromUtf8(info->GetVendorName().c_str()), QString::fromUtf8(info->GetModelName().c_str()))
                .arg(version.Major)
                .arg(version.Minor)
                .arg(version.SubMinor);
    });
    return text.simplified();
}

QByteArray nameOf(INode *feature)
{
    QByteArray name;
    failureOf([&] { name = plain(feature->GetName()); });
    return name;
}

GenApi::EInterfaceType kindOf(INode *feature)
{
    GenApi::EInterfaceType kind = GenApi::intfIBase;
    failureOf([&] { kind = feature->GetPrincipalInterfaceType(); });
    return kind;
}

bool isStreamable(INode *feature)
{
    bool is = false;
    failureOf([&] { is = hasValue(feature) && feature->IsStreamable(); });
    return is;
}

bool isOfConnection(INode *feature)
{
    const QByteArray name = nameOf(feature);
    return name == "TLParamsLocked"
        || ((name.startsWith("Gev") || name.startsWith("DeviceLink")) && !isStreamable(feature));
}

bool isImplemented(INode *feature)
{
    return GenApi::IsImplemented(accessOf(feature));
}

bool isReadable(INode *feature)
{
    return GenApi::IsReadable(accessOf(feature));
}

bool isWritable(INode *feature)
{
    return GenApi::IsWritable(accessOf(feature));
}

FeatureValue readValue(INode *feature, bool usesCache)
{
    FeatureValue value;
    GenApi::EAccessMode mode = GenApi::NA;
    value.failure = failureOf([&] {
        mode = feature->GetAccessMode();
        if (GenApi::IsReadable(mode))
            value.text = plain(dynamic_cast<GenApi::IValue &>(*feature).ToString(false, !usesCache));
    });
    if (value.failure.isEmpty() && !GenApi::IsReadable(mode))
        value.failure = mode == GenApi::WO ? Text::tr("It can only be written.") : lockedReason(feature);
    return value;
}

QString lockedReason(INode *feature)
{
    GenApi::EAccessMode mode = GenApi::NA;
    const QString failure = failureOf([&] { mode = feature->GetAccessMode(); });
    if (!failure.isEmpty() || GenApi::IsWritable(mode))
        return failure;
    switch (mode) {
    case GenApi::NI:
        return Text::tr("The camera does not have it.");
    case GenApi::RO:
        return Text::tr("It can only be read now.");
    default:
        return Text::tr("It is not available now.");
    }
}

/** Whether the camera has a number as near to \a wanted as half the last digit that it shows, or its step. */
static bool isNear(INode *feature, const QByteArray &wanted)
{
    bool is = false;
    failureOf([&] {
        auto *const number = dynamic_cast<GenApi::IFloat *>(feature);
        const std::optional<double> value = numberOf(wanted);
        if (!number || !value)
            return;
        double tolerance = lastDigitOf(*value, number->GetDisplayNotation(), number->GetDisplayPrecision()) / 2;
        if (number->HasInc())
            tolerance = std::max(tolerance, number->GetInc());
        constexpr double slack = 1e-6; // of the rounding to digits
        is = std::fabs(number->GetValue() - *value) <= tolerance * (1 + slack);
    });
    return is;
}

QString writeValue(INode *feature, const QByteArray &value)
{
    const QString failure = failureOf([&] { dynamic_cast<GenApi::IValue &>(*feature).FromString(asGenApi(value)); });
    if (!failure.isEmpty() || !isReadable(feature))
        return failure;
    const FeatureValue has = readValue(feature);
    if (!has.failure.isEmpty() || isSameValue(value, has.text, kindOf(feature)) || isNear(feature, value))
        return has.failure;
    return Text::tr("The camera has taken another value.");
}

QString ensureValue(INode *feature, const QByteArray &value, bool usesCache)
{
    const FeatureValue has = readValue(feature, usesCache);
    if (has.failure.isEmpty() && isSameValue(value, has.text, kindOf(feature)))
        return {};
    const QString locked = lockedReason(feature);
    return locked.isEmpty() ? writeValue(feature, value) : locked;
}
