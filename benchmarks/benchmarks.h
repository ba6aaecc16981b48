#pragma once

#include "measure.h"

#include <OrvGenApi/memoryport.h>
#include <OrvGenApi/nodemap.h>

#include <QByteArray>

#include <memory>

/** A GenICam description with that many features of all kinds, 50 a category, the integers in registers. */
QByteArray describeCamera(int features);

/** A camera that is nothing but memory. */
struct MemoryCamera
{
    explicit MemoryCamera(int features);

    OrvGenApi::MemoryPort port;
    std::unique_ptr<OrvGenApi::NodeMap> map;
};

/** Building the model, beside filling a QStandardItemModel of the same shape with the same texts. */
void measureModelBuilding(Table &table, int features, int repetitions);

/** Reading all values through the model, beside asking GenApi and formatting what it answers. */
void measureValueReading(Table &table, int features, int repetitions);

/** Loading the description at \a path, beside pugixml's own parse of that file. */
void measureLoading(Table &table, const QString &path, int repetitions);
