// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include "measure.h"

#include <OrvGenApi/memoryport.h>
#include <OrvGenApi/nodemap.h>

#include <QByteArray>

#include <memory>

/** A GenICam description with that many features of all kinds, 50 a category, the integers in registers. */
QByteArray describeCamera(int features);

/**
 * The same kinds of features in a tree of three levels of categories, 20 in each. Their names end in numbers of five
 * digits, up to 99999. The integers that polling fires are registers without a cache, spread evenly.
 */
QByteArray describeTree(int features);
constexpr int polledFeatures = 10;
constexpr int pollingTime = 100;

/**
 * A tree that has nothing but registers without a cache, one every \c registerSize bytes from 0 on. What locks some of
 * them is in the second bank.
 */
QByteArray describeRegisters(int features);
constexpr int registerSize = 4;
constexpr int secondBank = 1000000; ///< the number of its first register

/** A camera that is nothing but memory. */
struct MemoryCamera
{
    explicit MemoryCamera(const QByteArray &description);

    OrvGenApi::MemoryPort port;
    std::unique_ptr<OrvGenApi::NodeMap> map;
};

/** Building the model, beside filling a QStandardItemModel of the same shape with the same texts. */
void measureModelBuilding(Table &table, int features, int repetitions);

/** Reading all values through the model, beside asking GenApi and formatting what it answers. */
void measureValueReading(Table &table, int features, int repetitions);

/** Loading the description at \a path, beside pugixml's own parse of that file. */
void measureLoading(Table &table, const QString &path, int repetitions);

/** What people do with the feature tree, beside a tree that consists of Qt's own classes. */
void measureFeatureTree(Table &table, const std::vector<int> &sizes);

/** How often registers are read for that. */
void countRegisterReads(Table &table);
