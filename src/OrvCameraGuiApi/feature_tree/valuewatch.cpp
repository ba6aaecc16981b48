// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/feature_tree/valuewatch.h>

#include <OrvCameraGuiApi/feature_tree/genparamtreemodel.h>

#include <QCryptographicHash>

#include <utility>

namespace {

constexpr int step = 100; // ms
constexpr qint64 duration = 1500; // ms

/** What is kept of \a text: a register may have any length. */
QString kept(const QString &text)
{
    constexpr int longest = 100; // characters
    if (text.size() <= longest)
        return text;
    return QString::fromLatin1(QCryptographicHash::hash(text.toUtf8(), QCryptographicHash::Sha1).toHex());
}

} // namespace

ValueWatch::ValueWatch(QObject *parent)
    : QObject(parent)
{
    m_clock.start();
    m_timer.setInterval(step);
    connect(&m_timer, &QTimer::timeout, this, &ValueWatch::fade);
}

ValueWatch::~ValueWatch()
{
    if (m_model)
        m_model->setReadObserver({});
}

void ValueWatch::setModel(GenParamTreeModel *model)
{
    if (m_model)
        m_model->setReadObserver({});
    m_model = model;
    observe();
}

void ValueWatch::setTracksChanges(bool on)
{
    if (std::exchange(m_tracksChanges, on) != on)
        observe();
}

void ValueWatch::setMarks(bool on)
{
    if (std::exchange(m_marks, on) == on)
        return;
    m_marked.clear();
    if (!m_tracksChanges)
        observe();
}

/** Begins anew. */
void ValueWatch::observe()
{
    m_seen.clear();
    m_timer.stop();
    const bool hadMarks = !std::exchange(m_marked, {}).isEmpty();
    if (m_model && (m_tracksChanges || m_marks))
        m_model->setReadObserver([this](GenApi::IValue *feature, const QString &text) { note(feature, text); });
    else if (m_model)
        m_model->setReadObserver({});
    if (!std::exchange(m_changed, {}).isEmpty())
        tellSoon();
    if (hadMarks)
        Q_EMIT marksFaded();
}

/** \a value is null if it cannot be read. */
void ValueWatch::note(GenApi::IValue *feature, const QString &value)
{
    const QString text = kept(value);
    const auto seen = m_seen.find(feature);
    if (value.isNull() || seen == m_seen.end()) {
        if (!value.isNull())
            m_seen.insert(feature, {text, text});
        if (m_tracksChanges)
            Q_EMIT compared(feature);
        return;
    }
    if (std::exchange(seen->last, text) != text && m_marks) {
        m_marked.insert(feature, m_clock.elapsed());
        if (!m_timer.isActive())
            m_timer.start();
    }
    if (!m_tracksChanges)
        return;
    noteChange(feature, seen->first != text);
    Q_EMIT compared(feature);
}

void ValueWatch::noteChange(GenApi::IValue *feature, bool isChanged)
{
    if (m_changed.contains(feature) == isChanged)
        return;
    if (isChanged)
        m_changed.insert(feature);
    else
        m_changed.remove(feature);
    tellSoon();
}

void ValueWatch::tellSoon()
{
    if (!std::exchange(m_isTold, false))
        return;
    QMetaObject::invokeMethod(
        this,
        [this] {
            m_isTold = true;
            Q_EMIT changedFeaturesChanged();
        },
        Qt::QueuedConnection);
}

qreal ValueWatch::strengthOf(GenApi::IValue *feature) const
{
    const auto marked = m_marked.find(feature);
    return marked == m_marked.end() ? 0 : qMax<qreal>(0, 1 - qreal(m_clock.elapsed() - *marked) / duration);
}

/** Marks that have faded are painted away before they are dropped. */
void ValueWatch::fade()
{
    const QPointer<ValueWatch> alive(this);
    Q_EMIT marksFaded();
    if (!alive)
        return;
    const qint64 oldest = m_clock.elapsed() - duration;
    for (auto marked = m_marked.begin(); marked != m_marked.end();)
        marked = *marked < oldest ? m_marked.erase(marked) : std::next(marked);
    if (m_marked.isEmpty())
        m_timer.stop();
}
