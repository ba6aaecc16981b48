#include "settingscompare.h"

#include "settingssaver.h"
#include "valuetext.h"

#include <QCoreApplication>

#include <memory>
#include <set>

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(Settings)
};

struct Row
{
    Setting setting;
    QVector<Setting> context;
    QByteArray key;
};

/** A guess from the name alone. */
bool looksLikeSelector(const QByteArray &name)
{
    return name.endsWith("Selector") || name.endsWith("Index");
}

/** The lines of a file with the selectors that they stand under. */
class Rows
{
public:
    Rows(const SettingsFile &file, const SelectorNames &selectors)
        : m_selectors(selectors)
    {
        for (const Setting &setting : file.settings)
            ++m_counts[setting.name];
        for (const Setting &setting : file.settings)
            add(setting);
    }

    QVector<Row> rows; ///< the last line of each key
    QHash<QByteArray, int> places; ///< by key

private:
    void add(const Setting &setting)
    {
        Row row{setting, contextOf(setting.name), setting.name};
        for (const Setting &each : qAsConst(row.context))
            row.key += '\0' + each.name + '\0' + each.value;
        m_entries.insert(setting.name, setting.value);
        if (looksLikeSelector(setting.name))
            m_lastSelector = setting.name;
        const auto known = places.constFind(row.key);
        if (known != places.constEnd()) {
            rows[*known] = row;
            return;
        }
        places.insert(row.key, rows.size());
        rows.append(row);
    }

    QVector<Setting> contextOf(const QByteArray &name) const
    {
        QVector<QByteArray> names = m_selectors ? m_selectors(name) : QVector<QByteArray>();
        const bool isRepeated = m_counts.value(name) > 1 && !looksLikeSelector(name);
        if (names.isEmpty() && isRepeated && !m_lastSelector.isEmpty())
            names.append(m_lastSelector);
        QVector<Setting> context;
        for (const QByteArray &selector : qAsConst(names)) {
            if (m_entries.contains(selector))
                context.append({selector, m_entries.value(selector), 0});
        }
        return context;
    }

    const SelectorNames &m_selectors;
    QHash<QByteArray, int> m_counts;
    QHash<QByteArray, QByteArray> m_entries; ///< so far, of everything
    QByteArray m_lastSelector;
};

SettingDifference onOneSide(const Row &row, bool isLeft)
{
    SettingDifference difference;
    difference.name = row.setting.name;
    difference.context = row.context;
    difference.isLeft = isLeft;
    difference.isRight = !isLeft;
    (isLeft ? difference.left : difference.right) = row.setting.value;
    return difference;
}

} // namespace

QVector<SettingDifference> compareSettings(const SettingsFile &left, const SettingsFile &right,
                                           const SelectorNames &selectors)
{
    const Rows leftRows(left, selectors);
    const Rows rightRows(right, selectors);
    QVector<SettingDifference> differences;
    for (const Row &row : leftRows.rows) {
        const auto place = rightRows.places.constFind(row.key);
        SettingDifference difference = onOneSide(row, true);
        difference.isRight = place != rightRows.places.constEnd();
        if (difference.isRight)
            difference.right = rightRows.rows.at(*place).setting.value;
        if (!difference.isRight || !isSameValue(difference.left, difference.right))
            differences.append(difference);
    }
    for (const Row &row : rightRows.rows) {
        if (!leftRows.places.contains(row.key))
            differences.append(onOneSide(row, false));
    }
    return differences;
}

QVector<SettingDifference> compareWithCamera(const SettingsFile &file, GenApi::INodeMap &map,
                                             const SettingsProgress &progress)
{
    SettingsLoader loader(map, file);
    loader.look(progress);
    QVector<SettingDifference> differences;
    const QVector<SettingResult> results = loader.results();
    for (const SettingResult &result : results) {
        if (result.state == SettingResult::State::Different)
            differences.append({result.setting.name, result.context, result.setting.value, result.has, true,
                                result.reason.isEmpty(), result.reason});
    }
    SettingsSaver saver(map, progress);
    const SettingsFile camera = saver.save();
    const QVector<SettingDifference> others = compareSettings(file, camera, selectorsOf(map));
    for (SettingDifference other : others) {
        if (other.isLeft)
            continue;
        other.reason = Text::tr("It is not in the file.");
        differences.append(other);
    }
    return differences;
}

SelectorNames selectorsOf(GenApi::INodeMap &map)
{
    const auto features = std::make_shared<FeatureMap>(map);
    return [features](const QByteArray &name) {
        QVector<QByteArray> names;
        if (GenApi::INode *const feature = features->feature(name)) {
            for (GenApi::INode *selector : features->selectorsOf(feature))
                names.append(nameOf(selector));
        }
        return names;
    };
}
