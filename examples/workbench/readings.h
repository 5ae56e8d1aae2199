#pragma once

#include <cstdint>
#include <string>

namespace workbench
{

/// Readings of a machine that doesn't exist: a thousand million rows, ten milliseconds apart, none of them kept anywhere.
inline constexpr int g_RowCount = 1000000000;
inline constexpr int g_SensorCount = 6;
inline constexpr double g_Interval = 0.01;  // seconds

char const* GetSensorName(int sensor);
char const* GetSensorUnit(int sensor);
double Read(std::int64_t row, int sensor);
std::string FormatTime(std::int64_t row);  ///< "12  05:31:07.25": day and time.
std::string FormatReading(std::int64_t row, int sensor);

}  // namespace workbench
