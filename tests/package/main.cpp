#include "document/DocumentWriter.h"
#include "export/OrvaneExporter.h"

#include <iostream>

/// How a host is connected. Not called here, but linked with everything that an export needs.
void exportFrom(orvane::HostApplication& host) {
    orvane::COrvaneExporter exporter({.host = host});
    exporter.setRequest({.exportPath = "model.glb"});
    exporter.exportActiveDocument();
}

namespace {

bool check(const char* what, const std::string& found, const std::string& expected) {
    if (found != expected) {
        std::cerr << what << ": found '" << found << "', expected '" << expected << "'\n";
    }
    return found == expected;
}

} // namespace

int main() {
    orvane::ExportOptions options;
    options.setDestinationDirectory(u"models");
    options.setDefaultBinary(0);
    const std::string target = orvane::resolveTarget({}, options, "Desk lamp").file();

    orvane::TextStream text;
    orvane::writeDocumentHead(text, 3);
    const std::string head = text.text();
    const std::string lastLine = "\t\"scene\" : 3,\n";

    const bool isGood = check("target", target, "models\\Desk_lamp\\Desk_lamp.gltf") &
                        check("last line of the head", head.substr(head.size() - lastLine.size()), lastLine);
    return isGood ? 0 : 1;
}
