// The numbered members of a node such as "Solar.Sun.Corona": dated image data sets, the spots of a
// sunspot set, images with labels. They are "#1", "#2" ... below it, and "Count" is their number.
#pragma once

#include <QString>
#include <QStringView>

#include "engine/property_tree.h"

namespace vyn {

/// ".Add()": appends a member and gives it no value; those put in place for it beforehand stay.
/// With arguments it is a spot: its longitude, latitude and type. An image below "TakenImage" gets
/// a label.
void AddDataSet(PropertyTree& tree, const QString& basePath, QStringView arguments);

/// ".Delete(n)" or ".Delete(label)": removes that member; those behind it move up by one number.
/// An unknown member changes nothing.
void DeleteDataSet(PropertyTree& tree, const QString& basePath, QStringView argument);

}  // namespace vyn
