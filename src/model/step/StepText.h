#pragma once

#include <TCollection_HAsciiString.hxx>

#include <map>
#include <set>
#include <string>
#include <string_view>

/// Names as STEP files give them and as the host answers them.
namespace orvane::step {

/// Text of a STEP file as UTF-16 without blanks at its ends. The bytes are UTF-8, or Latin-1 where they are
/// not valid UTF-8, as older writers have it. Control characters become blanks.
std::u16string fromStepText(std::string_view bytes);
/// The same for a text of an entity; empty where it has none.
std::u16string fromStepText(const Handle(TCollection_HAsciiString) & text);

/// Whether a product's name was put there by a writer that had none.
bool isInventedProductName(std::u16string_view name);

/// An instance's own name among the three texts that the file gives it, or an empty one where it is not
/// named. The description comes first, because a common writer puts a fixed phrase into the name; the id
/// counts only where it continues the product's name (`Bolt.1`, `Bolt:2`), else it is a mere number.
std::u16string instanceName(const std::u16string& description, const std::u16string& name,
                            const std::u16string& id, const std::u16string& productName);

/// Makes names unique within one parent: the first of a name keeps it, later ones get `-1`, `-2`, ….
class SiblingNames {
public:
    /// Keeps a name that will be taken later from being given away with a number.
    void reserve(std::u16string name);

    /// `wanted` with `/` made `_`, or that with the first free number behind it.
    std::u16string take(std::u16string wanted);

private:
    std::set<std::u16string> reserved_;
    std::set<std::u16string> taken_;
    std::map<std::u16string, unsigned> lastNumber_; ///< given so far to a name that was taken
};

} // namespace orvane::step
