// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "settingscompare.h"

#include "settingssaver.h"
#include "valuetext.h"

#include <QCoreApplication>

#include <memory>
#include <set>
#include <utility>

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
    /** \a entries: of selectors, where the file has none above. */
    Rows(const SettingsFile &file, FeatureMap *camera, const QHash<QByteArray, QByteArray> &entries)
        : m_camera(camera)
        , m_entries(entries)
    {
        for (const Setting &setting : file.settings)
            ++m_counts[setting.name];
        for (const Setting &line : file.settings) {
            Setting plain = line;
            const QVector<Setting> settings =
                camera ? camera->withSelectors(line) : takeSelectors(plain, looksLikeSelector) << plain;
            for (const Setting &setting : settings)
                add(setting);
        }
    }

    QVector<Row> rows; ///< the last line of each key
    QHash<QByteArray, int> places; ///< by key

private:
    void add(const Setting &setting)
    {
        Row row{setting, contextOf(setting.name), setting.name};
        if (m_camera)
            row.key = m_camera->keyOf(setting.name, row.context);
        else if (!row.context.isEmpty())
            row.key += '\0' + row.context.constFirst().name + '\0' + row.context.constFirst().value;
        m_entries.insert(setting.name, setting.value);
        if (looksLikeSelector(setting.name))
            m_lastSelector = setting.name;
        const auto known = places.constFind(row.key);
        if (known != places.constEnd()) {
            rows[*known] = row;
            return;
        }
        places.insert(row.key, int(rows.size()));
        rows.append(row);
    }

    QVector<Setting> contextOf(const QByteArray &name) const
    {
        QVector<QByteArray> names;
        if (GenApi::INode *const feature = m_camera ? m_camera->feature(name) : nullptr) {
            for (GenApi::INode *selector : m_camera->selectorsOf(feature))
                names.append(nameOf(selector));
        }
        const bool isRepeated = m_counts.value(name) > 1 && !looksLikeSelector(name);
        if (names.isEmpty() && isRepeated && !m_lastSelector.isEmpty())
            names.append(m_lastSelector);
        QVector<Setting> context;
        for (const QByteArray &selector : std::as_const(names)) {
            if (m_entries.contains(selector))
                context.append({selector, m_entries.value(selector), 0});
        }
        return context;
    }

    FeatureMap *const m_camera;
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

bool isSame(const SettingDifference &difference, FeatureMap *camera)
{
    GenApi::INode *const feature = camera ? camera->feature(difference.name) : nullptr;
    return feature ? isSameValue(difference.left, difference.right, kindOf(feature))
                   : isSameValue(difference.left, difference.right);
}

QVector<SettingDifference> compareRows(const Rows &left, const Rows &right, FeatureMap *camera)
{
    QVector<SettingDifference> differences;
    for (const Row &row : left.rows) {
        const auto place = right.places.constFind(row.key);
        SettingDifference difference = onOneSide(row, true);
        difference.isRight = place != right.places.constEnd();
        if (difference.isRight)
            difference.right = right.rows.at(*place).setting.value;
        if (!difference.isRight || !isSame(difference, camera))
            differences.append(difference);
    }
    for (const Row &row : right.rows) {
        if (!left.places.contains(row.key))
            differences.append(onOneSide(row, false));
    }
    return differences;
}

} // namespace

QVector<SettingDifference> compareSettings(const SettingsFile &left, const SettingsFile &right, FeatureMap *camera)
{
    return compareRows({left, camera, {}}, {right, camera, {}}, camera);
}

QVector<SettingDifference> compareWithCamera(const SettingsFile &file, GenApi::INodeMap &map, QStringList &remarks,
                                             const SettingsProgress &progress)
{
    SettingsLoader loader(map, file, progress);
    loader.look(progress);
    QVector<SettingDifference> differences;
    const QVector<SettingResult> results = loader.results();
    for (const SettingResult &result : results) {
        if (result.state == SettingResult::State::Different)
            differences.append({result.setting.name, result.context, result.setting.value, result.has, true,
                                result.reason.isEmpty(), result.reason});
    }
    SettingsSaver saver(map, progress);
    try {
        const SettingsFile camera = saver.save();
        remarks += camera.remarks;
        QHash<QByteArray, QByteArray> now; // the last line on each selector
        for (const Setting &setting : camera.settings)
            now.insert(setting.name, setting.value);
        FeatureMap features(map);
        const QVector<SettingDifference> others =
            compareRows({file, &features, now}, {camera, &features, {}}, &features);
        for (SettingDifference other : others) {
            if (other.isLeft)
                continue;
            other.reason = Text::tr("It is not in the file.");
            differences.append(other);
        }
    } catch (...) {
        remarks += saver.remarks();
        throw;
    }
    return differences;
}
