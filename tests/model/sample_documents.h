#pragma once

#include "model/json.h"

#include <gtest/gtest.h>

namespace velmora {

/// The settings of a fresh installation on the host "velmora.local".
inline constexpr std::string_view settingsDocument =
    R"({"linkMode":false,"host":"velmora.local","port":8765,"flightHeight":15.0,"minimumHeight":10.0,)"
    R"("followDistance":15.0,"boundaryBuffer":5.0,"returnBattery":30.0,"maxWindKmh":30.0,)"
    R"("approvalSeconds":60.0,"tracking":"own","notifyMac":true,"ntfyTopic":"","alertUnknownFaces":{},)"
    R"("alertPeople":{},"onboarded":false})";

/// The initial live state.
inline constexpr std::string_view quietDocument =
    R"({"armed":true,"phase":"docked",)"
    R"("drone":{"pos":{"x":74.0,"y":70.7},"altitude":0.0,"heading":-90.0,"speed":0.0,"battery":92.0,)"
    R"("signal":0.96,"trail":[]},"windKmh":9.0,"gustKmh":0.0,"atBoundary":false,"trackingMode":"own",)"
    R"("notices":[],"site":{"name":"Home","size":{"x":150.0,"y":100.0},"boundary":[{"x":7.4,"y":6.6},)"
    R"({"x":142.6,"y":6.6},{"x":142.6,"y":90.6},{"x":7.4,"y":90.6}],"pad":{"x":74.0,"y":70.7},"cameras":[)"
    R"({"id":"driveway","name":"Driveway","pos":{"x":40.0,"y":46.0},"heading":120.0,)"
    R"("snapshot":"snapshot-driveway","online":true},)"
    R"({"id":"front","name":"Front lawn","pos":{"x":77.0,"y":47.0},"heading":70.0,)"
    R"("snapshot":"snapshot-front","online":true},)"
    R"({"id":"garden","name":"East garden","pos":{"x":86.0,"y":24.0},"heading":10.0,)"
    R"("snapshot":"snapshot-garden","online":true}],"planImage":"plan-base"}})";

/// A live state with every optional field, keys in the server's spelling.
inline constexpr std::string_view busyServerDocument =
    R"({"armed":true,"phase":"awaiting_approval","mission_id":"M-42","mission_start":"2025-06-01T14:03:12Z",)"
    R"("approval_deadline":"2025-06-01T14:04:12Z","drone":{"pos":{"x":1.5,"y":2.5},"altitude":3.5,)"
    R"("heading":4.5,"speed":5.5,"battery":6.5,"signal":0.5,"trail":[{"x":7.0,"y":8.0}]},)"
    R"("visitor":{"pos":{"x":9.0,"y":10.0},"label":"Zoë","confidence":0.9,"camera_id":"front","inside":true,)"
    R"("trail":[{"x":11.0,"y":12.0}]},"wind_kmh":13.0,"gust_kmh":14.0,"at_boundary":true,)"
    R"("tracking_mode":"native","notices":[{"id":"01234567-89AB-CDEF-0123-456789ABCDEF",)"
    R"("time":"2025-06-01T14:03:13Z","text":"Hello","level":"alert"}],"site":{"name":"Home",)"
    R"("size":{"x":150.0,"y":100.0},"boundary":[{"x":0.0,"y":0.0}],"pad":{"x":74.0,"y":70.7},)"
    R"("cameras":[{"id":"front","name":"Front","pos":{"x":1.0,"y":2.0},"heading":3.0,"snapshot":"s",)"
    R"("online":false}],"plan_image":"plan-base"}})";

inline constexpr std::string_view historyDocument =
    R"([{"id":"M-42","start":"2025-06-01T14:03:12Z","end":"2025-06-01T14:04:12Z","cameraId":"front",)"
    R"("cameraName":"Front lawn","label":"Übeltäter 🚶","confidence":0.87,)"
    R"("outcome":"Alert expired — drone stayed docked","dronePath":[{"x":0.1,"y":1e-300}],)"
    R"("visitorPath":[{"x":-0.0,"y":12.25},{"x":1e21,"y":3.0}],"maxDistanceFromPad":41.5,"batteryUsed":8.25,)"
    R"("notices":[{"id":"01234567-89AB-CDEF-0123-456789ABCDEF","time":"2025-06-01T14:03:13Z",)"
    R"("text":"Zeile\n\"zwei\"","level":"caution"}],"snapshot":"snapshot-front","demo":true}])";

/// The document with the only occurrence of `from` changed to `to`.
inline std::string changed(std::string_view document, std::string_view from, std::string_view to) {
    std::string text(document);
    const std::size_t at = text.find(from);
    EXPECT_NE(at, std::string::npos) << from << " does not occur";
    EXPECT_EQ(text.find(from, at + 1), std::string::npos) << from << " occurs twice";
    return at == std::string::npos ? text : text.replace(at, from.size(), to);
}

} // namespace velmora
