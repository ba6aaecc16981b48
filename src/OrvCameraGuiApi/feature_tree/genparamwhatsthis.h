// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <OrvCameraGuiApi/feature_tree/genparamfeature.h>

#include <QStringList>

/** The lines of a help text, in rich text. */
class HelpLines
{
public:
    /** Adds the text or the texts that \a line returns, or nothing when it throws. */
    template <typename Line>
    void add(Line line)
    {
        failureOf([&] { m_lines += line(); });
    }

    void addType(const QString &type);

    QString text() const { return m_lines.join(QLatin1String("<br />")); }

private:
    QStringList m_lines;
};

/** The elements of \a values, each as \a format makes it, joined with commas. */
template <typename List, typename Format>
QString commaSeparated(const List &values, Format format)
{
    QStringList texts;
    for (size_t i = 0; i < values.size(); ++i)
        texts += format(values[i]);
    return texts.join(QLatin1Char(','));
}

/**
 * The help text of \a feature, as rich text. A line whose getter throws is left out; throws nothing. Texts of the
 * camera are escaped: a description that looks like markup is shown literally.
 */
QString genParamWhatsThis(const GenParamFeature &feature);
