// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include "settingsfile.h"

#include <GenApi/GenApi.h>

#include <functional>
#include <unordered_map>
#include <vector>

/** Thrown by a progress that nobody wants to go on. */
struct SettingsInterrupted
{
};

/** Performs \a operation; why it failed, never empty then. */
QString failureOf(const std::function<void()> &operation);

/** What a feature answers. */
struct FeatureValue
{
    QByteArray text;
    QString failure; ///< empty: the text is the value
};

/**
 * The features of a node map, whose operations may all throw, as plain answers. For one thread; other threads may use
 * the node map at the same time.
 */
class FeatureMap
{
public:
    explicit FeatureMap(GenApi::INodeMap &map);

    GenApi::INodeMap &nodeMap() const { return m_map; }

    /** A feature by its name, null if there is none that has a value. Registers behind features are none. */
    GenApi::INode *feature(const QByteArray &name);

    /** All that select the feature, whoever selects others in front of them. */
    const std::vector<GenApi::INode *> &selectorsOf(GenApi::INode *feature);

    /** A line of a file behind the selectors that it has itself. */
    QVector<Setting> withSelectors(const Setting &setting);

    /** The same for the same feature with the same entries of its selectors, however these are written. */
    QByteArray keyOf(const QByteArray &name, const QVector<Setting> &context);

    /** All features that have a value, in the order of the tree. */
    std::vector<GenApi::INode *> features() const;

    /** The features that belong to a set of settings, whatever others depend on in front of them. */
    std::vector<GenApi::INode *> streamableFeatures();

    /** Likewise, all that have a value, except those of the connection: it must survive a foreign file. */
    std::vector<GenApi::INode *> otherFeatures();

    /** Vendor, model and version, one line. */
    QString device() const;

private:
    std::vector<GenApi::INode *> featuresThat(bool (*belong)(GenApi::INode *));

    GenApi::INodeMap &m_map;
    std::unordered_map<GenApi::INode *, std::vector<GenApi::INode *>> m_selectors;
};

QByteArray nameOf(GenApi::INode *feature);
GenApi::EInterfaceType kindOf(GenApi::INode *feature);

/** From the camera; \a usesCache: what was read before will do. */
FeatureValue readValue(GenApi::INode *feature, bool usesCache = false);

/** Whether it has a value that belongs to a set of settings. */
bool isStreamable(GenApi::INode *feature);

/** Whether a file must not change it: the connection and the acquisition hang on it. */
bool isOfConnection(GenApi::INode *feature);

bool isImplemented(GenApi::INode *feature);
bool isReadable(GenApi::INode *feature);
bool isWritable(GenApi::INode *feature);

/** Why it cannot be written now, empty if it can. */
QString lockedReason(GenApi::INode *feature);

/** Writes the value, and reads it again; why it is another one by then, as far as its digits and steps allow. */
QString writeValue(GenApi::INode *feature, const QByteArray &value);

/** The same, unless it is the value already; \a usesCache: what was read before tells. */
QString ensureValue(GenApi::INode *feature, const QByteArray &value, bool usesCache = false);
