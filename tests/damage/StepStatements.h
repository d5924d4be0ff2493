#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace orvane::step_damage {

/// A STEP file in pieces; put together in this order they are its bytes.
struct StepText {
    std::string head;                    ///< up to `DATA;` with it
    std::vector<std::string> statements; ///< each with the blanks before it and its semicolon
    std::string tail;                    ///< from the `ENDSEC;` of the data on

    std::string bytes() const;
};

/// Takes a well-formed file with one DATA section apart.
StepText takenApart(std::string_view file);

enum class WordKind { reference, real, integer, name, text, other, open, close };

/// A part of a statement's text; a comma is none. `other` are `$`, `*` and words in points (`.T.`).
struct Word {
    WordKind kind = WordKind::other;
    std::size_t at = 0;
    std::size_t size = 0;
};

/// The words behind the `=` of a statement. What the damage before has made no word of is left out.
std::vector<Word> wordsOf(const std::string& statement);

/// `#12`, or nothing where the statement has lost it.
std::string idOf(const std::string& statement);
/// Its entity's name, of several in one statement the first.
std::string entityOf(const std::string& statement);

} // namespace orvane::step_damage
