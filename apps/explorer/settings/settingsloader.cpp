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

bool isSelector(INode *node)
{
    bool is = false;
    failureOf([&] {
        const auto *const selector = dynamic_cast<GenApi::ISelector *>(node);
        is = selector && selector->IsSelector();
    });
    return is;
}

QByteArray keyOf(const QByteArray &name, const QVector<Setting> &context)
{
    QByteArray key = name;
    for (const Setting &setting : context)
        key += '\0' + setting.name + '\0' + setting.value;
    return key;
}

} // namespace

struct SettingsLoader::Entry
{
    SettingResult result;
    INode *feature = nullptr;
    std::vector<INode *> selectors; ///< of the context
    bool wasRead = false; ///< what the camera had is known
};

SettingsLoader::SettingsLoader(GenApi::INodeMap &map, const SettingsFile &file)
    : m_map(map)
{
    for (const Setting &setting : file.settings) {
        if (INode *const feature = m_map.feature(setting.name))
            addSetting(setting, feature);
        else
            addUnknown(setting);
    }
}

SettingsLoader::~SettingsLoader() = default;

void SettingsLoader::addUnknown(const Setting &setting)
{
    Entry entry;
    entry.result.setting = setting;
    entry.result.reason = Text::tr("The camera has no feature of that name with a value.");
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
    const QByteArray key = keyOf(setting.name, entry.result.context);
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
    const QByteArray key = keyOf(entry.result.setting.name, entry.result.context);
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
        for (Entry &entry : m_entries) {
            tell(entry);
            read(entry);
        }
    } catch (...) {
        restoreSelectors();
        throw;
    }
    restoreSelectors();
}

void SettingsLoader::load(const SettingsProgress &progress)
{
    m_isComplete = false;
    try {
        look(progress);
        for (Entry &entry : m_entries) {
            if (entry.result.state == State::Different && entry.result.reason.isEmpty())
                entry.result.reason = Text::tr("It was not tried.");
        }
        adjustAll();
        settleSelectors();
        m_isComplete = true;
    } catch (const SettingsInterrupted &) {
        restoreSelectors();
    }
}

void SettingsLoader::putBack(const SettingsProgress &progress)
{
    m_progress = progress;
    m_isComplete = false;
    m_done = 0;
    const auto isUnknown = [](const Entry &entry) { return !entry.wasRead; };
    m_entries.erase(std::remove_if(m_entries.begin(), m_entries.end(), isUnknown), m_entries.end());
    for (Entry &entry : m_entries)
        entry.result.setting.value = entry.result.before;
    m_steps.clear();
    m_last.clear();
    for (const SelectorState &selector : m_selectors) {
        if (selector.wasRead)
            m_last.insert(selector.name, selector.before);
    }
    try {
        adjustAll();
        settleSelectors();
        m_isComplete = true;
    } catch (const SettingsInterrupted &) {
        restoreSelectors();
    }
}

/** Selects what the entry is about; why that is not possible, empty if it is. */
QString SettingsLoader::choose(const Entry &entry)
{
    for (std::size_t i = 0; i < entry.selectors.size(); ++i) {
        const Setting &wanted = entry.result.context.at(int(i));
        const QString failure = ensureValue(entry.selectors[i], wanted.value);
        if (!failure.isEmpty())
            return Text::tr("'%1' cannot be set to '%2': %3")
                .arg(QString::fromUtf8(wanted.name), QString::fromUtf8(wanted.value), failure);
    }
    return {};
}

/** Reads what the camera has, and says whether it differs. */
void SettingsLoader::read(Entry &entry)
{
    if (!entry.feature)
        return;
    SettingResult &result = entry.result;
    result.state = State::Different;
    result.reason = choose(entry);
    if (!result.reason.isEmpty())
        return;
    const FeatureValue value = readValue(entry.feature);
    result.reason = value.failure;
    if (!result.reason.isEmpty())
        return;
    result.has = value.text;
    if (!entry.wasRead)
        result.before = value.text;
    entry.wasRead = true;
    const GenApi::EInterfaceType kind = kindOf(entry.feature);
    if (isSameValue(result.setting.value, result.has, kind))
        result.state = isSameValue(result.setting.value, result.before, kind) ? State::Same : State::Set;
}

/** True if the camera's value has changed. */
bool SettingsLoader::adjust(Entry &entry)
{
    const GenApi::AutoLock lock(m_map.nodeMap().GetLock()); // nobody else selects meanwhile
    read(entry);
    SettingResult &result = entry.result;
    if (!entry.feature || result.state != State::Different || !result.reason.isEmpty())
        return false;
    result.reason = lockedReason(entry.feature);
    if (!result.reason.isEmpty())
        return false;
    const QByteArray before = result.has;
    const QString failure = writeValue(entry.feature, result.setting.value);
    m_hasWritten = true;
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
}

/** Those inside others as the file has them for each entry of the others, then all as at its end. */
void SettingsLoader::settleSelectors()
{
    for (Entry &step : m_steps) {
        if (!step.feature || step.selectors.empty())
            continue;
        tell(step);
        if (choose(step).isEmpty())
            ensureValue(step.feature, step.result.setting.value);
    }
    for (SelectorState &selector : m_selectors) {
        if (m_last.contains(selector.name))
            selector.failure = ensureValue(selector.feature, m_last.value(selector.name));
    }
}

void SettingsLoader::restoreSelectors()
{
    for (SelectorState &selector : m_selectors) {
        if (selector.wasRead)
            selector.failure = ensureValue(selector.feature, selector.before);
    }
}

QVector<SettingResult> SettingsLoader::results() const
{
    QVector<SettingResult> results;
    results.reserve(int(m_entries.size()));
    for (const Entry &entry : m_entries)
        results.append(entry.result);
    for (const SelectorState &selector : m_selectors) {
        if (selector.isInFile)
            results.append(resultOf(selector));
    }
    return results;
}

SettingResult SettingsLoader::resultOf(const SelectorState &selector) const
{
    SettingResult result;
    result.setting = {selector.name, m_last.value(selector.name), 0};
    result.before = selector.before;
    const FeatureValue now = readValue(selector.feature, true);
    result.has = now.text;
    result.reason = now.failure.isEmpty() ? selector.failure : now.failure;
    const GenApi::EInterfaceType kind = kindOf(selector.feature);
    if (now.failure.isEmpty() && isSameValue(result.setting.value, now.text, kind))
        result.state = isSameValue(result.setting.value, result.before, kind) ? State::Same : State::Set;
    return result;
}

void SettingsLoader::tell(const Entry &entry)
{
    constexpr int usualPasses = 3; // looking, writing, reading again
    const int total = int(m_entries.size()) * usualPasses;
    if (m_progress)
        m_progress(std::min(m_done++, total), total, entry.result.setting.name);
}
