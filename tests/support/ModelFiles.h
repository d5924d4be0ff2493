#pragma once

#include "model/ModelReader.h"
#include "model/records/ModelError.h"

#include <atomic>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>
#include <unistd.h>

namespace orvane {

/// A private folder of model documents, gone with the object.
class ModelFiles {
public:
    ModelFiles() {
        static std::atomic<int> count = 0;
        folder_ = std::filesystem::temp_directory_path() /
                  ("orvane-models-" + std::to_string(::getpid()) + '-' + std::to_string(++count));
        std::filesystem::create_directories(folder_);
    }
    ~ModelFiles() {
        std::error_code error;
        std::filesystem::remove_all(folder_, error);
    }
    ModelFiles(const ModelFiles&) = delete;
    ModelFiles& operator=(const ModelFiles&) = delete;

    const std::filesystem::path& folder() const { return folder_; }

    void write(const std::string& name, std::string_view text) const {
        std::filesystem::create_directories((folder_ / name).parent_path());
        std::ofstream(folder_ / name, std::ios::binary) << text;
    }

    Model read(const std::string& name) const { return readModel(folder_ / name); }
    Model readText(const std::string& name, std::string_view text) const {
        write(name, text);
        return read(name);
    }

    /// The message of the refusal, without the folder; "accepted" where there is none.
    std::string refusal(const std::string& name) const {
        try {
            read(name);
        } catch (const ModelError& error) {
            std::string message = error.what();
            const std::string prefix = folder_.string() + '/';
            for (auto at = message.find(prefix); at != std::string::npos; at = message.find(prefix)) {
                message.erase(at, prefix.size());
            }
            return message;
        }
        return "accepted";
    }
    std::string refusalOf(const std::string& name, std::string_view text) const {
        write(name, text);
        return refusal(name);
    }

private:
    std::filesystem::path folder_;
};

} // namespace orvane
