#include "PlateHost.h"

#include "export/OrvaneExporter.h"

#include <iostream>

int main() {
    const orvane::HostRef<orvane::HostApplication> host = openPlateHost();
    orvane::COrvaneExporter exporter({.host = *host});
    exporter.setRequest({.exportPath = "plate.gltf"});
    exporter.exportActiveDocument();

    const orvane::ExportReport& report = exporter.report();
    for (const std::string& message : report.warnings) {
        std::cerr << "warning: " << message << "\n";
    }
    for (const std::string& message : report.errors) {
        std::cerr << "error: " << message << "\n";
    }
    std::cout << report.writtenFile << "\n";
    return report.hasFailed() ? 1 : 0;
}
