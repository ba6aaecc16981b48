// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QVector>

#include <functional>

/** A feature and its value, both UTF-8, the value as GenApi writes it. */
struct Setting
{
    QByteArray name;
    QByteArray value;
    int line = 0; ///< in its file, from 1; 0 outside a file
};

/** Settings in the text form of GenApi's feature persistence, in the order in which they are to be applied. */
struct SettingsFile
{
    QString device; ///< that the settings are of; empty if unknown
    QVector<Setting> settings;
    QStringList remarks; ///< what is missing or was passed over, a line each
};

/** Thrown if a file cannot be read or written; the message is one line for the user. */
struct SettingsError
{
    QString message;
};

/** Told before each step; throws to interrupt. \a feature is the one that is next, empty for none. */
using SettingsProgress = std::function<void(int done, int total, const QByteArray &feature)>;

/**
 * Reads \a content: what is no setting is passed over with a remark, a missing head is one. Throws a SettingsError if
 * there is nothing that could be a setting.
 */
SettingsFile parseSettings(const QByteArray &content, const SettingsProgress &progress = {});

/** The same of a file; "-" is the standard input. */
SettingsFile readSettings(const QString &path, const SettingsProgress &progress = {});

/** The bounds of a file. */
constexpr int longestLine = 1 << 20; ///< bytes
constexpr qint64 longestFile = 64 << 20; ///< bytes
constexpr int mostSettings = 1000000;

/**
 * The selectors of a line that has its own, "{NAME=VALUE TAB NAME=VALUE} TAB VALUE", taken out of it; none if it is not
 * of that form with selectors alone: a text may begin like this, too.
 */
QVector<Setting> takeSelectors(Setting &setting, const std::function<bool(const QByteArray &name)> &isSelector);

QByteArray textOf(const SettingsFile &file);

/** Replaces the file as a whole or not at all; "-" is the standard output. Throws a SettingsError. */
void writeSettings(const SettingsFile &file, const QString &path);

/** The same of any content. */
void writeWhole(const QByteArray &content, const QString &path);

/** Adds a remark, unless there are very many already, which the last one tells. */
void addRemark(QStringList &remarks, const QString &remark);

/** Adds the entries of its selectors: "Gain (GainSelector=Red)". */
QString nameWithContext(const QByteArray &name, const QVector<Setting> &context);
