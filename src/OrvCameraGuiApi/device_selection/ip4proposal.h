// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QVector>

/** \file What there is to say of an IPv4 address in its subnet. Addresses are as IP4Validator has them. */

/** Whether the mask leaves so few addresses that none of them stands for the subnet or for all in it. */
bool hasOnlyHosts(unsigned int mask);

/** The lowest address of a subnet stands for the subnet itself, the highest one for all that are in it. */
bool isNetworkAddress(unsigned int address, unsigned int mask);
bool isBroadcastAddress(unsigned int address, unsigned int mask);

/**
 * An address for a camera on that network adapter: the one above the adapter's, or below where its last octet is more
 * than 128. If that is among the \a taken ones, the next in its direction that is free, else the next in the other; if
 * the subnet has none, the neighbour nevertheless.
 */
unsigned int proposedAddress(unsigned int adapter, unsigned int mask, const QVector<unsigned int> &taken);
