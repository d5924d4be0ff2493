#pragma once

#include "document/ExportReport.h"
#include "document/GltfDocument.h"
#include "export/DocumentBuilding.h"
#include "export/ExportOptions.h"
#include "export/ExportTarget.h"
#include "export/SceneFiles.h"
#include "host/HostApplication.h"
#include "platform/LanguageTexts.h"
#include "platform/SettingsStore.h"
#include "platform/UserPrompts.h"
#include "platform/WaitCursor.h"

#include <cstdint>
#include <optional>
#include <string>
#include <utility>

namespace orvane {

/// The one host revision that exports are made from.
inline constexpr std::int32_t kSupportedHostRevision = 28;

/// What surrounds the exporter. All of it outlives the exporter; only the host has to be there.
struct ExporterSurroundings {
    HostApplication& host;
    UserPrompts* prompts = nullptr; ///< without it nothing is shown, and every question is answered with No
    WaitCursor* cursor = nullptr;
    const LanguageTexts* texts = nullptr; ///< without it every text is empty
    SettingsStore* settings = nullptr;
};

/// Takes save requests to finished files: one long synchronous operation at a time, on the host's main
/// thread. It throws nothing and, but for the question whether to replace a file, says nothing; `report`
/// tells what became of the last export.
class COrvaneExporter {
public:
    /// Connects to the host: asks it for its revision, and takes the options that the store holds.
    explicit COrvaneExporter(const ExporterSurroundings& surroundings);
    virtual ~COrvaneExporter() = default;
    COrvaneExporter(const COrvaneExporter&) = delete;
    COrvaneExporter& operator=(const COrvaneExporter&) = delete;

    /// The host's save callbacks for parts and assemblies. `path` may carry something behind its extension,
    /// which goes; one without a known extension leaves the request as it is.
    void onSaveAsPart(const std::u16string& path) { onSaveAs(path, "gltf", "glb"); }
    void onSaveAsAssembly(const std::u16string& path) { onSaveAs(path, "glb", "gltf"); }

    /// What the next export is asked for. Takes the place of a request that was not carried out, as a whole.
    void setRequest(ExportRequest request) { request_ = std::move(request); }
    const ExportRequest& request() const { return request_; }

    /// Exports the document in front as the request and the options say, and empties the request; where no
    /// export began, be it that the host's revision is another one, that no document is open or that the
    /// person did not want a file replaced, the request stays. However an export ends, the host stands as
    /// before.
    virtual void exportActiveDocument();

    /// Where the present request would go.
    ExportTarget plannedTarget();

    /// The title of the document in front; a text in the person's language when the host gives none.
    std::u16string defaultDocumentTitle();

    const ExportOptions& options() const { return options_; }
    /// Takes other options for the exports to come. Nothing of them is stored.
    void setOptions(ExportOptions options) { options_ = std::move(options); }
    /// Sets one switch for the exports to come, and stores it if it is one that is kept.
    void setOption(ExportSwitch option, std::int16_t value);
    /// The counters of the running export; the place for a listener.
    Progress& progress() { return document_.progress; }
    const ExportReport& report() const { return report_; }

    std::int32_t hostRevision; ///< the host's major revision, as the host told it at connection

private:
    /// Whether an export began. What it used up is emptied at its end; without one the request stays.
    enum class Progression { notBegun, ended };

    void onSaveAs(const std::u16string& path, const std::string& first, const std::string& second);
    std::optional<std::string> titleFault();
    bool mayReplace(const ExportTarget& target);
    void refuseHost() noexcept;
    Progression runRequest();
    void exportDocument(const HostRef<HostModelDoc>& modelDoc, const ExportTarget& target);
    void exportText(const HostRef<HostModelDoc>& modelDoc, const exporter::SceneFile& scene,
                    StagedFolder& staged);
    void exportBinary(const HostRef<HostModelDoc>& modelDoc, const exporter::SceneFile& scene,
                      StagedFolder& staged);
    void warnOfLeftBehind(const StagedFolder& staged) noexcept;
    exporter::DocumentSource documentSource(const HostRef<HostModelDoc>& modelDoc);
    void finish() noexcept;
    std::string languageText(std::int32_t number) const;

    ExporterSurroundings surroundings_;
    ExportOptions options_;
    ExportRequest request_;
    ExportReport report_;
    GltfDocument document_;
    std::int32_t trackingId_ = 0;
};

} // namespace orvane
