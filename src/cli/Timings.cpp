#include "cli/Timings.h"

#include "cli/DecimalText.h"

#include <iomanip>
#include <string_view>

namespace orvane::cli {

void printTimings(std::ostream& out, const Timings& timings) {
    const auto line = [&](std::string_view what, double value, int decimals, std::string_view unit) {
        out << "orvane: " << std::left << std::setw(12) << what << std::right << std::setw(10)
            << decimalText(value, decimals) << " " << unit << "\n";
    };
    line("parsing", timings.reading.parsing, 2, "s");
    line("transferring", timings.reading.transferring, 2, "s");
    line("meshing", timings.reading.meshing, 2, "s");
    line("building", timings.building, 2, "s");
    line("writing", timings.writing, 2, "s");
    line("total", timings.total, 2, "s");
    line("peak memory", static_cast<double>(timings.peakMemory) / 1e6, 0, "MB");
}

} // namespace orvane::cli
