// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include "featuremap.h"

#include <memory>

/**
 * Collects the settings of a camera: the streamable features that can be read and written at the moment, those that a
 * selector selects for each of its entries. Of a camera that marks none as streamable all features, except those of its
 * connection. Writes nothing but selectors, and puts these back, also when the progress interrupts it. What is missing
 * is in the remarks. Throws a SettingsError if nothing can be saved, or the camera is lost meanwhile.
 */
class SettingsSaver
{
public:
    SettingsSaver(GenApi::INodeMap &map, SettingsProgress progress);
    ~SettingsSaver();

    SettingsFile save();

    /** What is missing so far, selectors that could not be put back among it. */
    const QStringList &remarks() const { return m_file.remarks; }

    /** How many combinations of entries are visited below one selector. */
    static constexpr int mostCombinations = 20000;

private:
    struct Block;
    class KeptSelectors;

    void plan();
    void checkCamera() const;
    void place(GenApi::INode *feature);
    void saveItems(const Block &block);
    void saveBlock(const Block &block);
    void saveEntries(const Block &block, const QByteArray &now);
    void saveFeature(GenApi::INode *feature);
    QString failureOfText(GenApi::INode *feature, const QByteArray &text);
    void add(const QByteArray &name, const QByteArray &value);
    void remark(GenApi::INode *feature, const QString &why);
    void tell(GenApi::INode *feature);

    FeatureMap m_map;
    const SettingsProgress m_progress;
    SettingsFile m_file;
    std::unique_ptr<Block> m_root;
    GenApi::INode *m_first = nullptr; ///< a feature that could be read, whatever is selected
    qint64 m_size = 0; ///< of the file, about
    QVector<Setting> m_context; ///< selectors with their entries, outside in
    int m_written = 0; ///< of them, lines in the file already
    int m_combinations = 0; ///< visited below the present outermost selector
    int m_done = 0; ///< items of the root
};
