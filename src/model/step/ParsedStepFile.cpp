#include "model/step/ParsedStepFile.h"

#include "model/records/ModelError.h"
#include "model/step/NestingCheck.h"
#include "model/step/ParserSession.h"
#include "model/step/StepDamage.h"
#include "model/step/StepFileCheck.h"
#include "model/step/TessellatedShapes.h"

#include <XSControl_WorkSession.hxx>

#include <array>
#include <fstream>
#include <streambuf>

namespace orvane::step {

namespace {

/// A file to read once, that tells how far the reading is.
class CountedFile final : public std::streambuf {
public:
    CountedFile(const std::filesystem::path& file, std::atomic<std::uint64_t>& bytes) : bytes_(bytes) {
        file_.open(file, std::ios::in | std::ios::binary);
    }

private:
    int_type underflow() override {
        const std::streamsize count = file_.sgetn(block_.data(), static_cast<std::streamsize>(block_.size()));
        bytes_ += static_cast<std::uint64_t>(count);
        setg(block_.data(), block_.data(), block_.data() + count);
        return count > 0 ? traits_type::to_int_type(block_[0]) : traits_type::eof();
    }

    std::filebuf file_;
    std::array<char, 1 << 16> block_{};
    std::atomic<std::uint64_t>& bytes_;
};

/// What only annotates goes unread.
void leaveOut(STEPCAFControl_Reader& reader) {
    reader.SetNameMode(Standard_False); // see `readInstances`
    reader.SetLayerMode(Standard_False);
    reader.SetPropsMode(Standard_False);
    reader.SetGDTMode(Standard_False);
    reader.SetMatMode(Standard_False);
    reader.SetViewMode(Standard_False);
    reader.SetSHUOMode(Standard_False); // see `takeStyles`
}

} // namespace

void parseStepFile(const std::filesystem::path& file, std::atomic<std::uint64_t>& bytes,
                   ParsedStepFile& parsed) {
    checkStepFile(file);
    parsed.file = file;
    leaveOut(parsed.reader);
    const Handle(ParserSession) session = new ParserSession;
    session->SelectNorm("STEP");
    parsed.reader.Init(session, Standard_True);
    CountedFile counted(file, bytes);
    std::istream stream(&counted);
    if (!session->parse(stream)) {
        throw ModelError(file.string() + ": found text that is not in the exchange structure of STEP, "
                                         "expected 'HEADER;', 'DATA;' and one entity a statement");
    }
    const Damage damage = findDamage(session->Graph());
    parsed.unreadTessellation = findUnreadTessellation(session->Model());
    if (!damage.fatal.empty() && !parsed.unreadTessellation.empty()) {
        throw ModelError(file.string() + ": found " + parsed.unreadTessellation);
    }
    if (!damage.fatal.empty()) {
        throw ModelError(file.string() + ": found " + damage.fatal + ", expected whole statements");
    }
    for (const std::string& fault : damage.harmless) {
        parsed.warnings.push_back(file.string() + ": " + fault);
    }
    if (const std::string fault = findEndlessNesting(session->Graph()); !fault.empty()) {
        throw ModelError(file.string() + ": found that " + fault +
                         ", expected a structure that can be expanded");
    }
    parsed.references = takeExternalReferences(session, file.parent_path());
    parsed.styles = takeStyles(session);
}

} // namespace orvane::step
