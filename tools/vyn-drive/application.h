// The surroundings in which every run looks the same.
#pragma once

#include <memory>

#include <QApplication>

namespace vyn::drive {

/// Starts Qt without a display unless QT_QPA_PLATFORM says otherwise, with a style, font and timing
/// of its own choice. Ends the program with a message and exit status 1 when no platform starts or
/// no font has Japanese characters.
std::unique_ptr<QApplication> StartApplication(int& argc, char** argv);

}  // namespace vyn::drive
