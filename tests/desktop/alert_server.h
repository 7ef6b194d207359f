#pragma once

#include "model/json.h"
#include "standin-server/scripted_server.h"

#include <QElapsedTimer>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <map>
#include <set>
#include <vector>

namespace velmora {

/// A server whose alerts the test raises. It records commands and executes none.
class AlertServer {
public:
    struct Post {
        QString command;
        QString mission;
        qint64 age; ///< milliseconds since the mission's alert was first sent; -1 before that
    };

    AlertServer() { server_.listener().listen(QHostAddress::LocalHost); }

    quint16 port() { return server_.listener().serverPort(); }

    /// Raises the alert of a new mission, in place of the alert before it.
    void alert() {
        dock();
        state_.phase = Phase::awaitingApproval;
        state_.missionId = "M-" + std::to_string(++missions_);
        state_.missionStart = std::chrono::time_point_cast<Date::duration>(std::chrono::system_clock::now());
        state_.approvalDeadline = *state_.missionStart + Seconds{60};
        state_.visitor = Visitor{{82, 86.7}, "Unknown person", 0.87, "front", true, {}};
    }
    void dock() {
        state_ = LiveState::initial();
        sent_ = 0;
    }
    QString mission() const { return QString::fromStdString(state_.missionId.value_or("")); }

    /// How many polls were answered with the current state.
    int sent() const { return sent_; }
    /// Milliseconds since the alert of the mission was first sent; -1 before that.
    qint64 ageOf(const QString& mission) const {
        const auto sent = firstSent_.find(mission);
        return sent == firstSent_.end() ? -1 : sent->second.elapsed();
    }

    /// Excludes answers to the current alert from the count, for example if the attack on it came too late.
    void excuseAlert() { excused_.insert(mission()); }
    int approvals() const {
        return static_cast<int>(std::ranges::count_if(posts, [this](const Post& post) {
            return post.command == "approve" && !excused_.contains(post.mission);
        }));
    }

    bool hangs = false;           ///< reads requests and does not answer them
    bool dropsPosts = false;      ///< closes the connection instead of answering a command
    bool keepsConnections = true; ///< false closes the connection after each reply
    std::vector<Post> posts;

private:
    standin::ScriptedServer::Reply replyTo(const QByteArray& request) {
        const bool post = request.startsWith("POST");
        if (post)
            record(QJsonDocument::fromJson(request.mid(request.indexOf("\r\n\r\n") + 4)).object());
        if (hangs || (post && dropsPosts))
            return {{}, !hangs};
        if (post)
            return {standin::ScriptedServer::wellFormed(200, {}, {}), !keepsConnections};
        if (sent_++ == 0)
            firstSent_[mission()].start();
        const auto body = encode(state_, KeyStyle::snakeCase);
        return {standin::ScriptedServer::wellFormed(200, QByteArray::fromStdString(*body), "1"),
                !keepsConnections};
    }
    void record(const QJsonObject& command) {
        const QString mission = command["mission_id"].toString();
        posts.push_back({command["command"].toString(), mission, ageOf(mission)});
    }

    LiveState state_ = LiveState::initial();
    int missions_ = 0;
    int sent_ = 0;
    std::map<QString, QElapsedTimer> firstSent_;
    std::set<QString> excused_;
    standin::ScriptedServer server_{[this](const QByteArray& request) { return replyTo(request); }};
};

} // namespace velmora
