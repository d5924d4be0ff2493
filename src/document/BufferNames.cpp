#include "document/BufferNames.h"

#include "platform/Files.h"

namespace orvane {

namespace {

constexpr std::string_view kExtension = ".bin";

/// Piles suffixes on `name` until it is free, or until the system cannot take it.
void pileUp(std::string& name, std::int32_t& counter, const BufferFolder& folder) {
    while (!fileNameFault(name) && folder.contains(name)) {
        name.erase(name.rfind('.'));
        name += '-' + std::to_string(++counter);
        name += kExtension;
    }
}

} // namespace

std::string BufferNames::claim(const std::string& wanted, std::int32_t bufferIndex,
                               const BufferFolder& folder, ExportReport& report) {
    if (!fileNameFault(wanted) && !folder.contains(wanted)) {
        return wanted;
    }
    Pile& pile = piles_.try_emplace(wanted, Pile{wanted}).first->second;
    if (!pile.isUnusable) {
        pileUp(pile.name, pile.counter, folder);
        const std::optional<std::string> fault = fileNameFault(pile.name);
        if (!fault) {
            return pile.name;
        }
        pile.isUnusable = true;
        if (folder.showsNames()) {
            report.warnings.push_back("a buffer file that should be named after " + wanted.substr(0, 40) +
                                      " would get a name that " + *fault + "; it is written as buffer-" +
                                      std::to_string(bufferIndex) +
                                      ".bin, and further ones of that name likewise");
        }
    }
    std::string shortName = "buffer-" + std::to_string(bufferIndex) + std::string(kExtension);
    std::int32_t counter = 0;
    pileUp(shortName, counter, folder);
    return shortName;
}

std::string BufferNames::usable(const std::string& wanted, std::int32_t bufferIndex,
                                const BufferFolder& folder, ExportReport& report) {
    return fileNameFault(wanted) ? claim(wanted, bufferIndex, folder, report) : wanted;
}

} // namespace orvane
