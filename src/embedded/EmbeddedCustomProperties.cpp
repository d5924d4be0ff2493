#include "embedded/EmbeddedMetadata.h"

#include <utility>

namespace orvane::embedded {

namespace {

class EmbeddedCustomProperties final : public HostCustomProperties {
public:
    EmbeddedCustomProperties(SessionRef session, const std::vector<CustomPropertyRecord>& records)
        : session_(std::move(session)), records_(records) {}

    std::int32_t propertyCount() const override { return static_cast<std::int32_t>(records_.size()); }
    std::vector<HostCustomProperty> properties() const override {
        std::vector<HostCustomProperty> properties;
        properties.reserve(records_.size());
        for (const CustomPropertyRecord& record : records_) {
            properties.push_back({record.name, record.value, record.type});
        }
        return properties;
    }

    const void* identity() const noexcept override { return &records_; }

private:
    SessionRef session_; // keeps the records
    const std::vector<CustomPropertyRecord>& records_;
};

} // namespace

HostRef<HostCustomProperties> makeCustomProperties(const SessionRef& session,
                                                   const ConfigurationRecord& configuration) {
    return makeHostObject<EmbeddedCustomProperties>(session, configuration.customProperties);
}

} // namespace orvane::embedded
