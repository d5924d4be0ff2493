#pragma once

#include <XSControl_WorkSession.hxx>

#include <istream>

namespace orvane::step {

/// A session of the kernel that takes in a STEP file without the kernel's own check of each entity: that
/// crashes on statements which nothing shown needs, takes as long as a tenth of the parsing, and its verdicts
/// are used by nobody (see `findDamage`).
class ParserSession final : public XSControl_WorkSession {
public:
    /// Parses a file's text, once. Gives false for text that is not in the exchange structure of STEP.
    bool parse(std::istream& text);
};

} // namespace orvane::step
