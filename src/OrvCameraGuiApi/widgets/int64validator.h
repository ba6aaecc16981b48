#pragma once

#include <OrvCameraGuiApi/export.h>

#include <QString>
#include <QValidator>

/**
 * Checks that a text is a signed 64-bit integer within a range, and reads it.
 *
 * The verdicts let a person type towards a number of the range: what can still become one is Intermediate. The range is
 * taken as it is given, also when the bottom lies above the top (then no number is Acceptable).
 *
 * In base 10 a text may be written plainly or as locale() shows numbers, with its digits, its minus sign and its group
 * separators. Where the separators stand matters only for a locale that does not itself write any
 * (QLocale::OmitGroupSeparator): text with separators is being edited otherwise, and they fall in place later.
 *
 * GUI thread only, like every QValidator that a widget uses.
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
    /** Sets the base of the text, without a signal. A base outside 2 to 36 is ignored: the former one stays. */
    void setBase(int base);

    /**
     * The verdict on \a text; neither \a text nor \a pos is changed.
     *
     * No text is Intermediate; so is a lone minus sign where the bottom is negative. What is no 64-bit integer in the
     * base is Invalid. The rest depends on the signs of the bounds, and is not the same at both ends, intentionally:
     *
     * | range            | below the bottom                    | above the top                                   |
     * | ---------------- | ----------------------------------- | ----------------------------------------------- |
     * | on both sides    | Invalid                             | Invalid                                         |
     * | negative         | Invalid                             | Intermediate up to the bottom's absolute value  |
     * | 0 and greater    | Intermediate; Invalid when negative | Invalid                                         |
     */
    State validate(QString &text, int &pos) const override;

    /**
     * The number that \a text stands for in this base and locale, whatever the range; 0 when it stands for none.
     * \a ok, when given, tells which.
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
