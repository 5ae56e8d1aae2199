#include "readings.h"

#include <cmath>
#include <cstdio>

namespace workbench
{

namespace
{

struct SSensor
{
    char const* name;
    char const* unit;
    double level;
    double slow;  // amplitude of a wave of some minutes
    double fast;  // and of some seconds
    double noise;
    int decimals;
};

SSensor const g_Sensors[g_SensorCount] = {{"Pressure", "bar", 6.2, 1.1, 0.25, 0.05, 3},
                                          {"Temperature", "C", 71, 9, 1.5, 0.3, 2},
                                          {"Flow", "l/s", 24, 6, 4, 0.8, 2},
                                          {"Level", "%", 55, 20, 2, 0.2, 1},
                                          {"Speed", "1/min", 1480, 30, 12, 4, 0},
                                          {"Torque", "Nm", 210, 35, 18, 6, 1}};

// Evenly spread over -1 to 1, the same for the same row.
double Noise(std::int64_t row, int sensor)
{
    std::uint64_t x = static_cast<std::uint64_t>(row) * 0x9E3779B97F4A7C15ULL + static_cast<std::uint64_t>(sensor);
    x ^= x >> 31;
    x *= 0xBF58476D1CE4E5B9ULL;
    x ^= x >> 29;
    return static_cast<double>(x >> 11) / 4503599627370496.0 - 1.0;
}

}  // namespace

char const* GetSensorName(int sensor)
{
    return g_Sensors[sensor].name;
}

char const* GetSensorUnit(int sensor)
{
    return g_Sensors[sensor].unit;
}

double Read(std::int64_t row, int sensor)
{
    SSensor const& one = g_Sensors[sensor];
    double const seconds = static_cast<double>(row) * g_Interval;
    return one.level + one.slow * std::sin(seconds / (97 + 11 * sensor)) +
           one.fast * std::sin(seconds / (3.1 + sensor)) + one.noise * Noise(row, sensor);
}

std::string FormatTime(std::int64_t row)
{
    std::int64_t const hundredths = row;
    std::int64_t const seconds = hundredths / 100;
    char text[40];
    std::snprintf(text, sizeof text, "%d  %02d:%02d:%02d.%02d", static_cast<int>(seconds / 86400 + 1),
                  static_cast<int>(seconds / 3600 % 24), static_cast<int>(seconds / 60 % 60),
                  static_cast<int>(seconds % 60), static_cast<int>(hundredths % 100));
    return text;
}

std::string FormatReading(std::int64_t row, int sensor)
{
    char text[40];
    std::snprintf(text, sizeof text, "%.*f", g_Sensors[sensor].decimals, Read(row, sensor));
    return text;
}

}  // namespace workbench
