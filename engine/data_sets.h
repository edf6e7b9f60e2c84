// The numbered members of a node such as "Solar.Sun.Corona": dated image data sets, the spots of a
// sunspot set, images with labels. They are "#1", "#2" ... below it, and "Count" is their number.
#pragma once

#include <QString>
#include <QStringView>

#include "engine/property_tree.h"

namespace vyn {

/// The value at a path, an empty text when it has none.
QString ValueAt(const PropertyTree& tree, const QString& path);

/// How many members the node has.
int CountOfDataSets(const PropertyTree& tree, const QString& basePath);

/// ".Add()": appends a member. It gets the values that stand below "*" of the node, and with them
/// the moment shown; in a bare engine none. Those put in place for it beforehand stay. With
/// arguments it is a spot: its longitude, latitude and type. An image below "TakenImage" gets a
/// label.
void AddDataSet(PropertyTree& tree, const QString& basePath, QStringView arguments);

/// ".Delete(n)" or ".Delete(label)": removes that member; those behind it move up by one number.
/// An unknown member changes nothing.
void DeleteDataSet(PropertyTree& tree, const QString& basePath, QStringView argument);

}  // namespace vyn
