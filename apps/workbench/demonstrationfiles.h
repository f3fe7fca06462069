// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtCore/QString>

/// Fills a folder with the files of a simulated bay: disturbance records as IEEE C37.111 (COMTRADE,
/// 1999, ASCII) lays them down, an event list and a settings file.
/// @param device name of the device, as the files tell it
/// @return false when a file cannot be written
bool writeDemonstrationFiles(const QString &folder, const QString &device);
