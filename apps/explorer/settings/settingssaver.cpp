// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "settingssaver.h"

#include "valuetext.h"

#include <QCoreApplication>

#include <algorithm>
#include <unordered_set>
#include <utility>

using GenApi::INode;

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(Settings)
};

void addEntries(GenApi::IEnumeration &selector, QVector<QByteArray> &entries)
{
    GenApi::NodeList_t nodes;
    selector.GetEntries(nodes);
    for (INode *node : nodes) {
        const auto *const entry = dynamic_cast<GenApi::IEnumEntry *>(node);
        if (entry && GenApi::IsAvailable(node))
            entries.append(entry->GetSymbolic().c_str());
    }
}

void addEntries(GenApi::IInteger &selector, QVector<QByteArray> &entries)
{
    const auto listed = selector.GetListOfValidValues();
    for (std::size_t i = 0; i < listed.size() && entries.size() <= SettingsSaver::mostCombinations; ++i)
        entries.append(QByteArray::number(qlonglong(listed[i])));
    if (!entries.isEmpty())
        return;
    const qint64 last = selector.GetMax();
    const qint64 step = std::max<qint64>(selector.GetInc(), 1);
    qint64 value = selector.GetMin();
    for (bool isOver = value > last; !isOver && entries.size() <= SettingsSaver::mostCombinations;) {
        entries.append(QByteArray::number(value));
        isOver = __builtin_add_overflow(value, step, &value) || value > last;
    }
}

/** What can be chosen at the moment, perhaps one more than the limit; \a now where nothing is known. */
QVector<QByteArray> entriesOf(INode *selector, const QByteArray &now, QString &failure)
{
    QVector<QByteArray> entries;
    failure = lockedReason(selector);
    if (!failure.isEmpty())
        return {now};
    failure = failureOf([&] {
        if (auto *const enumeration = dynamic_cast<GenApi::IEnumeration *>(selector))
            addEntries(*enumeration, entries);
        else if (auto *const integer = dynamic_cast<GenApi::IInteger *>(selector))
            addEntries(*integer, entries);
        else if (dynamic_cast<GenApi::IBoolean *>(selector))
            entries = {"false", "true"};
    });
    return entries.isEmpty() ? QVector<QByteArray>{now} : entries;
}

bool hasLineBreak(const QByteArray &text)
{
    return text.contains('\n') || text.contains('\r') || text.contains('\0');
}

QString lineBreakReason()
{
    return Text::tr("Its text has a line break, which no line of a file can hold.");
}

} // namespace

/** What a selector selects, or, without one, what nothing selects. */
struct SettingsSaver::Block
{
    struct Item
    {
        INode *feature = nullptr; ///< null for a block
        std::unique_ptr<Block> block;
    };

    Block &blockOf(INode *wanted)
    {
        for (const Item &item : items) {
            if (item.block && item.block->selector == wanted)
                return *item.block;
        }
        items.push_back({nullptr, std::make_unique<Block>()});
        items.back().block->selector = wanted;
        return *items.back().block;
    }

    /** Its selector and those in it, outside in. */
    void addSelectors(std::vector<INode *> &selectors) const
    {
        if (std::find(selectors.begin(), selectors.end(), selector) == selectors.end())
            selectors.push_back(selector);
        for (const Item &item : items) {
            if (item.block)
                item.block->addSelectors(selectors);
        }
    }

    INode *selector = nullptr;
    std::vector<Item> items;
};

/** The selectors of a block as they were, which they are again at the end of its life. */
class SettingsSaver::KeptSelectors
{
public:
    KeptSelectors(SettingsSaver &saver, const Block &block)
        : m_saver(saver)
    {
        std::vector<INode *> selectors;
        block.addSelectors(selectors);
        for (INode *selector : selectors) {
            const FeatureValue value = readValue(selector);
            if (value.failure.isEmpty())
                m_kept.push_back({selector, value.text});
        }
    }

    ~KeptSelectors()
    {
        for (const auto &[selector, value] : m_kept) {
            const QString failure = ensureValue(selector, value);
            if (!failure.isEmpty())
                m_saver.remark(selector,
                               Text::tr("It could not be put back to '%1': %2").arg(QString::fromUtf8(value), failure));
        }
    }

    KeptSelectors(const KeptSelectors &) = delete;
    KeptSelectors &operator=(const KeptSelectors &) = delete;

    /** As the last word of the file on them. */
    void addTo(QVector<Setting> &settings) const
    {
        for (const auto &[selector, value] : m_kept)
            settings.append({nameOf(selector), value, 0});
    }

private:
    SettingsSaver &m_saver;
    std::vector<std::pair<INode *, QByteArray>> m_kept;
};

SettingsSaver::SettingsSaver(GenApi::INodeMap &map, SettingsProgress progress)
    : m_map(map)
    , m_progress(std::move(progress))
{
}

SettingsSaver::~SettingsSaver() = default;

SettingsFile SettingsSaver::save()
{
    m_file = {m_map.device(), {}, {}};
    m_first = nullptr;
    m_size = 0;
    plan();
    m_done = 0;
    saveItems(*m_root);
    checkCamera();
    return m_file;
}

/** Half a camera must not replace the file of a whole one. */
void SettingsSaver::checkCamera() const
{
    if (m_file.settings.isEmpty())
        throw SettingsError{
            Text::tr("There is nothing that could be saved. %1").arg(m_file.remarks.value(0)).trimmed()};
    const FeatureValue again = m_first ? readValue(m_first) : FeatureValue();
    if (!again.failure.isEmpty())
        throw SettingsError{Text::tr("The camera does not answer any more: %1").arg(again.failure)};
}

/** A selector has its lines where what it selects stands. */
void SettingsSaver::plan()
{
    m_root = std::make_unique<Block>();
    std::vector<INode *> features = m_map.streamableFeatures();
    if (features.empty()) {
        features = m_map.otherFeatures();
        if (!features.empty())
            addRemark(m_file.remarks,
                      Text::tr("The camera marks no feature as a setting: all that can be read and "
                               "written are saved, except those of its connection."));
    }
    std::unordered_set<INode *> selectors;
    for (INode *feature : features) {
        const std::vector<INode *> &chain = m_map.selectorsOf(feature);
        selectors.insert(chain.begin(), chain.end());
    }
    for (INode *feature : features) {
        if (selectors.count(feature) == 0)
            place(feature);
    }
}

void SettingsSaver::place(INode *feature)
{
    Block *block = m_root.get();
    for (INode *selector : m_map.selectorsOf(feature))
        block = &block->blockOf(selector);
    block->items.push_back({feature, nullptr});
}

void SettingsSaver::saveItems(const Block &block)
{
    for (const Block::Item &item : block.items) {
        if (&block == m_root.get())
            m_combinations = 0;
        if (item.block)
            saveBlock(*item.block);
        else
            saveFeature(item.feature);
        if (&block == m_root.get())
            ++m_done;
    }
}

void SettingsSaver::saveBlock(const Block &block)
{
    FeatureValue now = readValue(block.selector);
    if (now.failure.isEmpty() && hasLineBreak(now.text))
        now.failure = lineBreakReason();
    if (!now.failure.isEmpty()) {
        if (isImplemented(block.selector))
            remark(block.selector, Text::tr("What it selects is saved once only: %1").arg(now.failure));
        return saveItems(block);
    }
    const auto before = m_file.settings.size();
    const QVector<Setting> outside = m_context;
    const KeptSelectors kept(*this, block);
    saveEntries(block, now.text);
    m_context = outside;
    m_written = std::min(m_written, int(outside.size()));
    if (m_file.settings.size() > before)
        kept.addTo(m_file.settings);
    else if (isWritable(block.selector) && isStreamable(block.selector))
        add(nameOf(block.selector), now.text);
}

void SettingsSaver::saveEntries(const Block &block, const QByteArray &now)
{
    QString failure;
    QVector<QByteArray> entries = entriesOf(block.selector, now, failure);
    if (!failure.isEmpty())
        remark(block.selector, Text::tr("Not all that it selects is saved: %1").arg(failure));
    const auto isNow = [&](const QByteArray &entry) { return isSameValue(now, entry, kindOf(block.selector)); };
    if (entries.size() > mostCombinations || std::none_of(entries.cbegin(), entries.cend(), isNow))
        entries.prepend(now); // it is there, whatever is cut
    const int depth = int(m_context.size());
    for (const QByteArray &entry : std::as_const(entries)) {
        m_context.resize(depth);
        m_written = std::min(m_written, depth);
        tell(block.selector);
        if (m_combinations++ >= mostCombinations)
            return remark(block.selector, Text::tr("It has too many entries: not all of them are saved."));
        failure = ensureValue(block.selector, entry, m_context.isEmpty());
        if (!failure.isEmpty()) {
            remark(block.selector,
                   Text::tr("What '%1' selects is not saved: %2").arg(QString::fromUtf8(entry), failure));
            continue;
        }
        m_context.append({nameOf(block.selector), entry, 0});
        saveItems(block);
    }
}

void SettingsSaver::saveFeature(INode *feature)
{
    tell(feature);
    GenApi::EAccessMode mode = GenApi::NA;
    FeatureValue value;
    value.failure = failureOf([&] { mode = feature->GetAccessMode(); });
    if (value.failure.isEmpty() && !(GenApi::IsReadable(mode) && GenApi::IsWritable(mode)))
        return;
    if (value.failure.isEmpty())
        value = readValue(feature);
    if (value.failure.isEmpty())
        value.failure = failureOfText(feature, value.text);
    if (!value.failure.isEmpty())
        return remark(feature, value.failure);
    if (!m_first && m_map.selectorsOf(feature).empty())
        m_first = feature;
    add(nameOf(feature), value.text);
}

/** Why no line of a file can hold it, empty if one can. */
QString SettingsSaver::failureOfText(INode *feature, const QByteArray &text)
{
    Setting setting{nameOf(feature), text, 0};
    if (hasLineBreak(text))
        return lineBreakReason();
    if (m_map.withSelectors(setting).size() > 1)
        return Text::tr("Its text would be taken for selectors.");
    m_size += setting.name.size() + text.size() + 2;
    const bool isTooLong = setting.name.size() + text.size() + 1 > longestLine || m_size > longestFile / 2;
    return isTooLong ? Text::tr("It is too large for a file.") : QString();
}

/** Behind the lines of its selectors. */
void SettingsSaver::add(const QByteArray &name, const QByteArray &value)
{
    for (; m_written < m_context.size(); ++m_written)
        m_file.settings.append(m_context.at(m_written));
    m_file.settings.append({name, value, 0});
}

void SettingsSaver::remark(INode *feature, const QString &why)
{
    addRemark(m_file.remarks, QStringLiteral("%1: %2").arg(nameWithContext(nameOf(feature), m_context), why));
}

void SettingsSaver::tell(INode *feature)
{
    if (m_progress)
        m_progress(m_done, int(m_root->items.size()), nameOf(feature));
}
