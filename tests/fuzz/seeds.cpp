#include "model/json.h"
#include "sim/simulator.h"

#include <filesystem>
#include <fstream>
#include <sstream>

using namespace velmora;

namespace {

using Missions = std::vector<MissionRecord>;
constexpr std::size_t pointsKept = 3; // short documents are mutated faster and more thoroughly

/// Writes a document into the corpus of a reader.
void addText(const std::filesystem::path& corpus, const std::string& text) {
    static int count = 0;
    create_directories(corpus);
    std::ofstream(corpus / std::to_string(count++)) << text;
}

template <class T>
void add(const std::filesystem::path& corpus, const T& value, KeyStyle keys = KeyStyle::fieldNames) {
    addText(corpus, encode(value, keys).value());
}

void addMissions(const std::filesystem::path& corpus, Date at, Random& random) {
    Missions all;
    for (const auto& [scenario, name] : rawValuesOf<Scenario>)
        for (const std::optional<double> approveAfter : {std::optional(9.0), std::optional<double>()}) {
            all.push_back(*Simulator::rehearse(scenario, approveAfter, {}, at, Settings{}, random));
            all.back().dronePath.resize(pointsKept);
            all.back().visitorPath.resize(pointsKept);
            add(corpus, Missions{all.back()});
        }
    add(corpus, all);
}

/// Server states at a few moments of a visit.
void addStates(const std::filesystem::path& corpus, Date at, Random& random) {
    Simulator simulator(LiveState::initial(), Settings{}, random);
    add(corpus, simulator.state, KeyStyle::snakeCase);
    simulator.trigger(Scenario::driveway, at);
    simulator.send(Command::approve, at);
    for (int tick = 0; tick < 600; ++tick) {
        simulator.step(0.1, at + Seconds{tick * 0.1});
        if (tick % 200 == 99)
            add(corpus, simulator.state, KeyStyle::snakeCase);
    }
}

/// A state in each form that HTTP has for a body.
void addReplies(const std::filesystem::path& corpus) {
    const std::string body = encode(LiveState::initial(), KeyStyle::snakeCase).value();
    const std::string head = "HTTP/1.1 200 OK\r\nX-Velmora-Version: 1.0\r\n";
    std::stringstream chunk;
    chunk << std::hex << body.size() << ";name=value\r\n" << body << "\r\n0\r\n";
    const std::string chunked = head + "Transfer-Encoding: chunked\r\n\r\n" + chunk.str();
    addText(corpus, head + "Content-Length: " + std::to_string(body.size()) + "\r\n\r\n" + body);
    addText(corpus, chunked + "\r\n");
    addText(corpus, "HTTP/1.1 100 Continue\r\n\r\n" + chunked + "X-Trailer: 1\r\n\r\n");
    addText(corpus, "HTTP/1.0 200\n\n" + body);
    addText(corpus, "HTTP/1.1 301 Moved\r\nLocation: /elsewhere\r\nContent-Encoding: gzip\r\n\r\n");
}

} // namespace

/// Writes the valid documents that fuzzing starts from, in one subdirectory of the given directory for each
/// reader.
int main(int argc, char* argv[]) {
    const std::filesystem::path root(argc > 1 ? argv[1] : "seeds");
    SystemRandom random;
    const Date at = dateFromSeconds(1'700'000'042);
    Settings settings;
    settings.ntfyTopic = "Grüße \"🚶\"\n";
    settings.alertPeople = {{"front", true}, {"", false}};
    add(root / "settings", settings);
    addMissions(root / "history", at, random);
    addStates(root / "server_state", at, random);
    addReplies(root / "server_reply");
    return 0;
}
