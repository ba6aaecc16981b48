// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <OrvCameraGuiApi/export.h>

#include <QString>
#include <QValidator>

/**
 * Checks dotted IPv4 text and converts it from and to a 32-bit address.
 *
 * An address is an unsigned 32-bit number whose most significant byte is the first octet of the text. The validator has
 * no state, so the conversions are static and may be called from any thread.
 */
class ORV_CAMERAGUIAPI_EXPORT IP4Validator : public QValidator
{
    Q_OBJECT

public:
    explicit IP4Validator(QObject *parent = nullptr);

    /**
     * Acceptable: four decimal octets (0 to 255) joined with ".", white space around an octet allowed, or no text at
     * all. Intermediate: fewer than four octets, or an octet still empty. Invalid: anything else.
     *
     * \a input and \a pos are never changed.
     */
    State validate(QString &input, int &pos) const override;

    /**
     * The address that \a text stands for. It reads any text: an octet that is not a number counts as 0, one above 255
     * spills into the octets before it, and of more than four octets the last four stay. A text that validate() accepts
     * gives exactly the address it shows; an empty one gives 0.
     */
    static unsigned int getIp(const QString &text);

    /** \a address as four decimal octets joined with ".", without leading zeros. */
    static QString getIpStr(unsigned int address);
};
