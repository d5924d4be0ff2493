#pragma once

#include "model/ModelReader.h"
#include "model/records/ModelError.h"
#include "support/TemporaryFolder.h"

#include <filesystem>
#include <string>

namespace orvane {

/// A private folder of model documents, gone with the object.
class ModelFiles {
public:
    const std::filesystem::path& folder() const { return folder_.path(); }

    void write(const std::string& name, const std::string& text) const {
        std::filesystem::create_directories((folder() / name).parent_path());
        writeFile(folder_ / name, text);
    }

    Model read(const std::string& name) const { return readModel(folder() / name); }
    Model readText(const std::string& name, const std::string& text) const {
        write(name, text);
        return read(name);
    }

    /// The message of the refusal, without the folder; "accepted" where there is none.
    std::string refusal(const std::string& name) const {
        try {
            read(name);
        } catch (const ModelError& error) {
            std::string message = error.what();
            const std::string prefix = folder().string() + '/';
            for (auto at = message.find(prefix); at != std::string::npos; at = message.find(prefix)) {
                message.erase(at, prefix.size());
            }
            return message;
        }
        return "accepted";
    }
    std::string refusalOf(const std::string& name, const std::string& text) const {
        write(name, text);
        return refusal(name);
    }

private:
    TemporaryFolder folder_;
};

} // namespace orvane
