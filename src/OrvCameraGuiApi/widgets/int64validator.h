// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <OrvCameraGuiApi/export.h>

#include <QString>
#include <QValidator>

/**
 * Checks that a text is a signed 64-bit integer within a range, and reads it.
 *
 * The verdicts let a person type towards a number of the range: a text that can still become one is Intermediate. The
 * range is taken as given. With the bottom above the top no number is Acceptable.
 *
 * In base 10 a text may be written plainly or as locale() writes numbers, with its digits, minus sign and group
 * separators. A locale that writes group separators (one without QLocale::OmitGroupSeparator) allows several of them
 * anywhere: the text is being edited, and they fall in place later.
 *
 * GUI thread only, like every QValidator of a widget.
 */
class ORV_CAMERAGUIAPI_EXPORT Int64Validator : public QValidator
{
    Q_OBJECT
    Q_CLASSINFO("version", "1.0.0")
    Q_CLASSINFO("date", "03/28/2018")
    Q_PROPERTY(long long bottom READ bottom WRITE setBottom NOTIFY bottomChanged)
    Q_PROPERTY(long long top READ top WRITE setTop NOTIFY topChanged)

public:
    /** Accepts every 64-bit integer, base 10. */
    explicit Int64Validator(QObject *parent = nullptr);
    /** Accepts \a bottom to \a top, base 10. */
    Int64Validator(long long bottom, long long top, QObject *parent = nullptr);

    long long bottom() const;
    void setBottom(long long bottom);

    long long top() const;
    void setTop(long long top);

    /** Sets the bottom, then the top; each bound that changes announces itself. */
    void setRange(long long bottom, long long top);

    /** 2 to 36; 10 by default. */
    int base() const;
    /** Sets the base of the text, without a signal. A base outside 2 to 36 is ignored. */
    void setBase(int base);

    /**
     * The verdict on \a text; neither \a text nor \a pos is changed.
     *
     * An empty text is Intermediate; so is a lone minus sign if the bottom is negative. A text that is no 64-bit
     * integer in the base is Invalid. A number is judged by the signs of the bounds, differently at the two ends,
     * intentionally:
     *
     * | range            | below the bottom                    | above the top                                   |
     * | ---------------- | ----------------------------------- | ----------------------------------------------- |
     * | on both sides    | Invalid                             | Invalid                                         |
     * | negative         | Invalid                             | Intermediate up to the bottom's absolute value  |
     * | 0 and greater    | Intermediate; Invalid when negative | Invalid                                         |
     */
    State validate(QString &text, int &pos) const override;

    /**
     * The number that \a text stands for in this base and locale, whatever the range; 0 if none. \a ok, when given,
     * tells the two apart.
     */
    long long toInt64(const QString &text, bool *ok = nullptr) const;

Q_SIGNALS:
    void bottomChanged(long long bottom);
    void topChanged(long long top);

private:
    State judge(long long number) const;
    State judgeInNegativeRange(long long number) const;

    long long m_bottom;
    long long m_top;
    int m_base = 10;
};
