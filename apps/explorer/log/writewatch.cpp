// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "writewatch.h"

#include "eventlog.h"
#include "settings/featuremap.h"

#include <algorithm>

using GenApi::INode;

namespace {

/** The value, if nobody has to be asked for it. */
bool keptValue(INode *node, QString &text)
{
    bool isKept = false;
    failureOf([&] {
        auto *const value = dynamic_cast<GenApi::IValue *>(node);
        if (!value || !value->IsValueCacheValid())
            return;
        text = QString::fromUtf8(value->ToString().c_str());
        isKept = true;
    });
    return isKept;
}

} // namespace

WriteWatch::WriteWatch(GenApi::INodeMap &map, EventLog &log, QObject *parent)
    : QObject(parent)
    , m_map(map)
    , m_log(log)
{
    FeatureMap features(map);
    for (INode *node : features.features()) {
        if (!features.selectorsOf(node).empty())
            m_selected.insert(node);
        failureOf([&] {
            const auto callback = GenApi::Register(node, *this, &WriteWatch::changed);
            m_features.push_back({node, callback});
        });
    }
    constexpr int period = 100; // milliseconds
    connect(&m_timer, &QTimer::timeout, this, &WriteWatch::lookAtSome);
    m_timer.start(period);
}

WriteWatch::~WriteWatch()
{
    for (const Feature &feature : m_features)
        failureOf([&] { feature.node->DeregisterCallback(feature.callback); });
}

/** Remembers what windows have read, a few features at a time; not while the camera is busy. */
void WriteWatch::lookAtSome()
{
    GenApi::CLock &lock = m_map.GetLock();
    if (m_features.empty() || !lock.TryLock())
        return;
    constexpr std::size_t few = 100;
    for (std::size_t i = 0; i < std::min(few, m_features.size()); ++i) {
        m_next = (m_next + 1) % m_features.size();
        INode *const node = m_features[m_next].node;
        QString value;
        const std::lock_guard locker(m_mutex);
        if (!m_known.contains(node) && keptValue(node, value)) {
            m_known.insert(node, value);
            m_kept.insert(node);
        }
    }
    lock.Unlock();
}

/** On any thread, within the node map's lock. */
void WriteWatch::changed(INode *node)
{
    QString value;
    const bool isKept = keptValue(node, value);
    if (isKept)
        log(node, value);
    const std::lock_guard locker(m_mutex);
    if (isKept) {
        m_kept.insert(node);
        return;
    }
    if (m_selected.count(node) != 0 || m_kept.count(node) != 0)
        m_known.remove(node); // it may be another one now
}

void WriteWatch::log(INode *node, const QString &value)
{
    std::unique_lock locker(m_mutex);
    const auto known = m_known.find(node);
    const bool isKnown = known != m_known.end();
    const QString before = isKnown ? *known : QString();
    m_known.insert(node, value);
    locker.unlock();
    if (!isKnown)
        m_log.add(LogLevel::Write, QString::fromUtf8(nameOf(node)), value);
    else if (before != value)
        m_log.add(LogLevel::Write, QString::fromUtf8(nameOf(node)), tr("%1, before: %2").arg(value, before));
}

void WriteWatch::noteWritten(const QString &feature)
{
    QString value;
    INode *const node = nodeOf(feature);
    if (dynamic_cast<GenApi::ICommand *>(node))
        m_log.add(LogLevel::Write, feature, tr("executed"));
    else if (node && !keptValue(node, value))
        logReadBack(node);
}

void WriteWatch::logReadBack(INode *node)
{
    const FeatureValue value = readValue(node, true);
    if (value.failure.isEmpty())
        return log(node, QString::fromUtf8(value.text));
    m_log.add(LogLevel::Write, QString::fromUtf8(nameOf(node)),
              tr("written; reading it back failed: %1").arg(value.failure));
    const std::lock_guard locker(m_mutex);
    m_known.remove(node);
}

/** The tree reads it as well: it is on the screen. */
void WriteWatch::noteCurrent(const QString &feature)
{
    INode *const node = nodeOf(feature);
    if (!node || !isReadable(node) || kindOf(node) == GenApi::intfICategory)
        return;
    const FeatureValue value = readValue(node, true);
    const std::lock_guard locker(m_mutex);
    if (value.failure.isEmpty())
        m_known.insert(node, QString::fromUtf8(value.text));
    else
        m_known.remove(node);
}

INode *WriteWatch::nodeOf(const QString &feature) const
{
    INode *node = nullptr;
    failureOf([&] { node = m_map.GetNode(feature.toUtf8().constData()); });
    return node;
}
