// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "settingsloader.h"

#include "valuetext.h"

#include <QCoreApplication>

#include <algorithm>

using GenApi::INode;

namespace {

using State = SettingResult::State;

constexpr int mostPasses = 10; // some settings contradict each other

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(Settings)
};

QString notTried()
{
    return Text::tr("It was not tried.");
}

bool isSelector(INode *node)
{
    bool is = false;
    failureOf([&] {
        const auto *const selector = dynamic_cast<GenApi::ISelector *>(node);
        is = selector && selector->IsSelector();
    });
    return is;
}

} // namespace

struct SettingsLoader::Entry
{
    SettingResult result;
    INode *feature = nullptr;
    std::vector<INode *> selectors; ///< of the context
    QByteArray original; ///< what the camera had at first
    QByteArray taken; ///< what it made of the value that was written
    bool wasRead = false; ///< original has a value
    bool hasBefore = false; ///< the result's before has a value
    bool wasWritten = false;
    bool wasTaken = false;
};

SettingsLoader::SettingsLoader(GenApi::INodeMap &map, const SettingsFile &file, const SettingsProgress &progress)
    : m_map(map)
{
    constexpr int turn = 1000; // lines
    int done = 0;
    for (const Setting &line : file.settings) {
        if (++done % turn == 0 && progress)
            progress(done, int(file.settings.size()), line.name);
        const QVector<Setting> settings = m_map.withSelectors(line);
        for (const Setting &setting : settings) {
            INode *const feature = m_map.feature(setting.name);
            if (!feature)
                refuse(setting, Text::tr("The camera has no feature of that name with a value."));
            else if (isOfConnection(feature))
                refuse(setting, Text::tr("It belongs to the connection, not to the settings."));
            else
                addSetting(setting, feature);
        }
    }
}

SettingsLoader::~SettingsLoader() = default;

/** Once for each name. */
void SettingsLoader::refuse(const Setting &setting, const QString &why)
{
    if (m_places.contains(setting.name))
        return;
    m_places.insert(setting.name, m_entries.size());
    Entry entry;
    entry.result.setting = setting;
    entry.result.reason = why;
    m_entries.push_back(std::move(entry));
}

/** The last line counts where a feature stands twice in the same context. */
void SettingsLoader::addSetting(const Setting &setting, INode *feature)
{
    Entry entry;
    entry.result.setting = setting;
    entry.feature = feature;
    for (INode *selector : m_map.selectorsOf(feature)) {
        const QByteArray name = nameOf(selector);
        if (!rememberSelector(selector, name))
            continue;
        entry.selectors.push_back(selector);
        entry.result.context.append({name, m_last.value(name), 0});
    }
    if (isSelector(feature)) {
        rememberSelector(feature, setting.name);
        const auto isIt = [feature](const SelectorState &selector) { return selector.feature == feature; };
        std::find_if(m_selectors.begin(), m_selectors.end(), isIt)->isInFile = true;
        m_last.insert(setting.name, setting.value);
        addSelectorLine(std::move(entry));
        return;
    }
    const QByteArray key = m_map.keyOf(setting.name, entry.result.context);
    const auto known = m_places.constFind(key);
    if (known != m_places.constEnd()) {
        m_entries[*known].result.setting = setting;
        return;
    }
    m_places.insert(key, m_entries.size());
    m_entries.push_back(std::move(entry));
}

/** The place of a line that counts is that of the last one. */
void SettingsLoader::addSelectorLine(Entry entry)
{
    const QByteArray key = m_map.keyOf(entry.result.setting.name, entry.result.context);
    const auto known = m_stepPlaces.constFind(key);
    if (known != m_stepPlaces.constEnd())
        m_steps[*known].feature = nullptr;
    m_stepPlaces.insert(key, m_steps.size());
    m_steps.push_back(std::move(entry));
}

/** Remembers how the camera has a selector at first; false if nobody knows its entry at this line. */
bool SettingsLoader::rememberSelector(INode *selector, const QByteArray &name)
{
    if (m_known.insert(selector).second) {
        const FeatureValue value = readValue(selector);
        SelectorState state{selector, name, value.text, {}, value.failure.isEmpty(), false};
        if (state.wasRead && !m_last.contains(name))
            m_last.insert(name, value.text);
        m_selectors.push_back(std::move(state));
    }
    return m_last.contains(name);
}

void SettingsLoader::look(const SettingsProgress &progress)
{
    m_progress = progress;
    try {
        keepSelectors();
        for (Entry &entry : m_entries) {
            tell(entry);
            read(entry);
        }
    } catch (...) {
        settleSelectors(false);
        throw;
    }
    settleSelectors(false);
}

void SettingsLoader::load(const SettingsProgress &progress)
{
    m_isComplete = false;
    for (Entry &entry : m_entries) {
        if (entry.feature)
            entry.result.reason = notTried();
    }
    try {
        look(progress);
        for (Entry &entry : m_entries) {
            if (entry.result.state == State::Different && entry.result.reason.isEmpty())
                entry.result.reason = notTried();
        }
    } catch (const SettingsInterrupted &) {
        return;
    }
    apply(true);
}

void SettingsLoader::putBack(const SettingsProgress &progress)
{
    m_progress = progress;
    m_isComplete = false;
    m_done = 0;
    const auto isUnknown = [](const Entry &entry) { return !entry.wasRead; };
    m_entries.erase(std::remove_if(m_entries.begin(), m_entries.end(), isUnknown), m_entries.end());
    for (Entry &entry : m_entries) {
        entry.result.setting.value = entry.original;
        entry.result.state = State::Different;
        entry.result.reason = notTried();
        entry.hasBefore = entry.wasWritten = entry.wasTaken = false;
    }
    m_steps.clear();
    m_last.clear();
    for (const SelectorState &selector : m_selectors) {
        if (selector.wasRead)
            m_last.insert(selector.name, selector.before);
    }
    apply(false);
}

/** The selectors are those of the file then, or those of the camera again. */
void SettingsLoader::apply(bool asInFile)
{
    try {
        adjustAll();
        settleSelectors(asInFile);
        m_isComplete = true;
    } catch (const SettingsInterrupted &) {
        settleSelectors(false);
    }
}

/** Selects what the entry is about; why that is not possible, empty if it is. */
QString SettingsLoader::choose(const Entry &entry)
{
    for (std::size_t i = 0; i < entry.selectors.size(); ++i) {
        const Setting &wanted = entry.result.context.at(int(i));
        keep(entry, i);
        const bool isOutermost = m_map.selectorsOf(entry.selectors[i]).empty();
        const QString failure = ensureValue(entry.selectors[i], wanted.value, isOutermost);
        if (!failure.isEmpty())
            return Text::tr("'%1' cannot be set to '%2': %3")
                .arg(QString::fromUtf8(wanted.name), QString::fromUtf8(wanted.value), failure);
    }
    return {};
}

/** Remembers how the camera has a selector of the entry, unless that is known. Those in front of it are chosen. */
void SettingsLoader::keep(const Entry &entry, std::size_t depth)
{
    const std::vector<INode *> &outside = m_map.selectorsOf(entry.selectors[depth]);
    if (outside.empty())
        return;
    Entry kept;
    kept.feature = entry.selectors[depth];
    for (std::size_t i = 0; i < depth; ++i) {
        if (std::find(outside.begin(), outside.end(), entry.selectors[i]) == outside.end())
            continue;
        kept.selectors.push_back(entry.selectors[i]);
        kept.result.context.append(entry.result.context.at(int(i)));
    }
    const QByteArray name = entry.result.context.at(int(depth)).name;
    const QByteArray key = m_map.keyOf(name, kept.result.context);
    if (m_keptPlaces.contains(key))
        return;
    const FeatureValue value = readValue(kept.feature);
    if (!value.failure.isEmpty())
        return;
    kept.result.setting = {name, value.text, 0};
    m_keptPlaces.insert(key, m_kept.size());
    m_kept.push_back(std::move(kept));
}

/** Those that only lines of selectors lead to. */
void SettingsLoader::keepSelectors()
{
    for (const Entry &step : m_steps) {
        if (!step.feature || step.selectors.empty())
            continue;
        tell(step);
        Entry inside = step;
        inside.selectors.push_back(step.feature);
        inside.result.context.append(step.result.setting);
        if (choose(step).isEmpty())
            keep(inside, step.selectors.size());
    }
}

/** Reads what the camera has, and says whether it differs. */
void SettingsLoader::read(Entry &entry)
{
    if (!entry.feature)
        return;
    SettingResult &result = entry.result;
    FeatureValue value;
    value.failure = choose(entry);
    if (value.failure.isEmpty())
        value = readValue(entry.feature);
    if (value.failure.isEmpty())
        return judge(entry, value.text);
    const QString again = Text::tr("It was set, and could not be read again: %1");
    if (!entry.wasTaken)
        result.state = State::Different;
    result.reason = entry.wasWritten ? again.arg(value.failure) : value.failure;
}

void SettingsLoader::judge(Entry &entry, const QByteArray &has)
{
    SettingResult &result = entry.result;
    result.has = has;
    result.reason.clear();
    if (!entry.wasRead)
        entry.original = has;
    if (!entry.hasBefore)
        result.before = has;
    entry.wasRead = entry.hasBefore = true;
    const GenApi::EInterfaceType kind = kindOf(entry.feature);
    const bool isWanted = isSameValue(result.setting.value, has, kind) || (entry.wasTaken && entry.taken == has);
    result.state = !isWanted ? State::Different : isSameValue(has, result.before, kind) ? State::Same : State::Set;
}

/** True if the camera's value has changed. */
bool SettingsLoader::adjust(Entry &entry)
{
    read(entry);
    SettingResult &result = entry.result;
    if (!entry.feature || result.state != State::Different || !result.reason.isEmpty())
        return false;
    result.reason = lockedReason(entry.feature);
    if (!result.reason.isEmpty())
        return false;
    const QByteArray before = result.has;
    const QString failure = writeValue(entry.feature, result.setting.value);
    m_hasWritten = entry.wasWritten = true;
    const FeatureValue value = readValue(entry.feature, true);
    entry.wasTaken = failure.isEmpty() && value.failure.isEmpty();
    entry.taken = value.text;
    read(entry);
    if (result.state == State::Different && result.reason.isEmpty())
        result.reason = failure.isEmpty() ? Text::tr("The camera has taken another value.") : failure;
    return result.has != before;
}

void SettingsLoader::adjustAll()
{
    bool hasChanged = true;
    for (int pass = 0; hasChanged && pass < mostPasses; ++pass) {
        hasChanged = false;
        for (Entry &entry : m_entries) {
            tell(entry);
            hasChanged = adjust(entry) || hasChanged;
        }
    }
    if (!hasChanged)
        return; // since everything was read
    for (Entry &entry : m_entries) {
        tell(entry);
        read(entry);
        if (entry.result.state == State::Different && entry.result.reason.isEmpty())
            entry.result.reason = Text::tr("Another setting has changed it again.");
    }
}

/**
 * Those inside others, the innermost first, for each entry of the others that was chosen, then all others: as the file
 * has them where it does, else as they were.
 */
void SettingsLoader::settleSelectors(bool asInFile)
{
    m_unsettled.clear();
    std::vector<Entry> steps = m_kept;
    for (Entry &step : m_steps) {
        if (!asInFile || !step.feature || step.selectors.empty())
            continue;
        const auto known = m_keptPlaces.constFind(m_map.keyOf(step.result.setting.name, step.result.context));
        if (known == m_keptPlaces.constEnd()) {
            steps.push_back(step);
            continue;
        }
        Setting &setting = steps[*known].result.setting;
        m_hasWritten = m_hasWritten || !isSameValue(setting.value, step.result.setting.value, kindOf(step.feature));
        setting = step.result.setting;
    }
    std::stable_sort(steps.begin(), steps.end(), [](const Entry &left, const Entry &right) {
        return left.selectors.size() > right.selectors.size();
    });
    int failures = 0; // on end: the camera is lost, and each would wait for it
    constexpr int mostFailures = 3;
    for (Entry &step : steps) {
        step.result.reason = failures < mostFailures ? settle(step) : notTried();
        failures = step.result.reason.isEmpty() ? 0 : failures + 1;
        if (failures > 0)
            m_unsettled.push_back(step.result);
    }
    for (SelectorState &selector : m_selectors) {
        const bool isFromFile = asInFile && m_last.contains(selector.name);
        if (!isFromFile && !selector.wasRead)
            continue;
        const QByteArray value = isFromFile ? m_last.value(selector.name) : selector.before;
        selector.failure = failures < mostFailures ? ensureValue(selector.feature, value) : notTried();
        failures = selector.failure.isEmpty() ? 0 : failures + 1;
        m_hasWritten = m_hasWritten || (asInFile && !isSameValue(value, selector.before, kindOf(selector.feature)));
    }
}

QString SettingsLoader::settle(const Entry &step)
{
    const QString failure = choose(step);
    return failure.isEmpty() ? ensureValue(step.feature, step.result.setting.value) : failure;
}

QVector<SettingResult> SettingsLoader::results() const
{
    QVector<SettingResult> results;
    results.reserve(int(m_entries.size()));
    for (const Entry &entry : m_entries)
        results.append(entry.result);
    for (const SettingResult &selector : m_unsettled)
        results.append(selector);
    for (const SelectorState &selector : m_selectors) {
        if (selector.isInFile || !selector.failure.isEmpty())
            results.append(resultOf(selector));
    }
    return results;
}

SettingResult SettingsLoader::resultOf(const SelectorState &selector) const
{
    SettingResult result;
    result.setting = {selector.name, m_last.value(selector.name), 0};
    result.before = selector.before;
    const FeatureValue now = readValue(selector.feature);
    result.has = now.text;
    result.reason = now.failure.isEmpty() ? selector.failure : now.failure;
    const GenApi::EInterfaceType kind = kindOf(selector.feature);
    if (now.failure.isEmpty() && isSameValue(result.setting.value, now.text, kind))
        result.state = isSameValue(result.setting.value, result.before, kind) ? State::Same : State::Set;
    else if (result.reason.isEmpty())
        result.reason = notTried();
    return result;
}

void SettingsLoader::tell(const Entry &entry)
{
    constexpr int usualPasses = 3; // looking, writing, reading again
    const int total = int(m_entries.size()) * usualPasses;
    if (m_progress)
        m_progress(std::min(m_done++, total), total, entry.result.setting.name);
}
