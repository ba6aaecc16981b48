// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include "featuremap.h"

#include <QHash>

#include <unordered_set>

/** What became of a line of a settings file. */
struct SettingResult
{
    enum class State {
        Same, ///< the camera has that value, and had it before
        Set, ///< the camera has it now
        Different ///< the reason tells why
    };

    Setting setting;
    QVector<Setting> context; ///< the entries of its selectors, outside in
    State state = State::Different;
    QByteArray before; ///< what the camera had, if that could be read
    QByteArray has; ///< the same at the end
    QString reason;
};

/** Compares a camera with the settings of a file, and applies them. */
class SettingsLoader
{
public:
    /** Reads selectors. Throws what the progress throws. */
    SettingsLoader(GenApi::INodeMap &map, const SettingsFile &file, const SettingsProgress &progress = {});
    ~SettingsLoader();

    /** Reads what the camera has, and puts its selectors back, those inside others, too. Throws likewise. */
    void look(const SettingsProgress &progress);

    /**
     * Writes what differs, again and again until nothing changes any more: a value may be out of the limits until
     * others are set. Reads everything again after the last change, and leaves the selectors as the file has them. Has
     * looked before. When the progress interrupts it, the selectors are put back, what was written stays, and
     * isComplete() is false.
     */
    void load(const SettingsProgress &progress);

    /** Likewise, what the camera had before load(). May be repeated. */
    void putBack(const SettingsProgress &progress);

    bool isComplete() const { return m_isComplete; }

    /** Whether anything was written that putBack() could change. */
    bool hasWritten() const { return m_hasWritten; }

    /**
     * A line of the file each; selectors, which stand there again and again, once, and once more for each entry of
     * others under which they could not be set or put back.
     */
    QVector<SettingResult> results() const;

private:
    struct Entry;

    struct SelectorState
    {
        GenApi::INode *feature;
        QByteArray name;
        QByteArray before;
        QString failure; ///< of the last change
        bool wasRead; ///< before has a value
        bool isInFile; ///< has a line of its own
    };

    void refuse(const Setting &setting, const QString &why);
    void addSetting(const Setting &setting, GenApi::INode *feature);
    void addSelectorLine(Entry entry);
    bool rememberSelector(GenApi::INode *selector, const QByteArray &name);
    QString choose(const Entry &entry);
    void keep(const Entry &entry, std::size_t depth);
    void keepSelectors();
    void read(Entry &entry);
    void judge(Entry &entry, const QByteArray &has);
    bool adjust(Entry &entry);
    void adjustAll();
    void apply(bool asInFile);
    void settleSelectors(bool asInFile);
    QString settle(const Entry &step);
    SettingResult resultOf(const SelectorState &selector) const;
    void tell(const Entry &entry);

    FeatureMap m_map;
    SettingsProgress m_progress;
    std::vector<Entry> m_entries; ///< without selectors, which come last
    std::vector<Entry> m_steps; ///< the lines of selectors that count; without a feature the others
    QHash<QByteArray, std::size_t> m_places; ///< of entries, by name and context
    QHash<QByteArray, std::size_t> m_stepPlaces;
    std::vector<Entry> m_kept; ///< selectors inside others as they were, for each entry of the others that was chosen
    QHash<QByteArray, std::size_t> m_keptPlaces;
    std::vector<SettingResult> m_unsettled; ///< of selectors inside others
    std::vector<SelectorState> m_selectors; ///< outside in
    std::unordered_set<GenApi::INode *> m_known; ///< selectors
    QHash<QByteArray, QByteArray> m_last; ///< entries of the selectors at the end
    bool m_isComplete = false;
    bool m_hasWritten = false;
    int m_done = 0;
};
