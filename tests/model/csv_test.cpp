#include "model/csv.h"

#include <gtest/gtest.h>

namespace velmora {

namespace {

MissionRecord visit() {
    MissionRecord record;
    record.id = "M-42";
    record.start = dateFromSeconds(1'700'000'000);
    record.end = record.start + Seconds{2};
    record.cameraName = "Driveway";
    record.label = "Unknown person";
    record.confidence = 0.875;
    record.batteryUsed = 8.25;
    record.maxDistanceFromPad = 41.5;
    record.outcome = Outcome::expired;
    return record;
}

/// The label field of a record with this label.
std::string labelField(const std::string& label) {
    MissionRecord record = visit();
    record.label = label;
    const std::string csv = recordsCsv({record});
    const std::string before = "2023-11-14T22:13:22Z,Driveway,", after = ",Alert expired";
    const std::size_t from = csv.find(before) + before.size();
    return csv.substr(from, csv.find(after) - from);
}

} // namespace

TEST(Csv, ARecordIsOneLineAfterTheHeader) {
    MissionRecord demo = visit();
    demo.demo = true;
    demo.outcome = Outcome::lowBattery;
    EXPECT_EQ(recordsCsv({visit(), demo}),
              "id,start,end,camera,label,outcome,confidence,battery used,furthest out,demo\r\n"
              "M-42,2023-11-14T22:13:20Z,2023-11-14T22:13:22Z,Driveway,Unknown person,"
              "Alert expired — drone stayed docked,0.875,8.25,41.5,no\r\n"
              "M-42,2023-11-14T22:13:20Z,2023-11-14T22:13:22Z,Driveway,Unknown person,"
              "Came home on low battery,0.875,8.25,41.5,yes\r\n");
    EXPECT_EQ(recordsCsv({}),
              "id,start,end,camera,label,outcome,confidence,battery used,furthest out,demo\r\n");
}

TEST(Csv, QuotesOnlyFieldsThatNeedIt) {
    EXPECT_EQ(labelField("plain; text"), "plain; text");
    EXPECT_EQ(labelField("one, two"), "\"one, two\"");
    EXPECT_EQ(labelField("a \"friend\""), "\"a \"\"friend\"\"\"");
    EXPECT_EQ(labelField("two\nlines"), "\"two\nlines\"");
    EXPECT_EQ(labelField("carriage\rreturn"), "\"carriage\rreturn\"");
    EXPECT_EQ(labelField(""), "");
}

TEST(Csv, SpreadsheetsReadNoTextAsAFormula) {
    for (const std::string start : {"=", "+", "-", "@", "\t"})
        EXPECT_EQ(labelField(start + "1").substr(0, 2), "'" + start);
    EXPECT_EQ(labelField("=A1,\"x\""), "\"'=A1,\"\"x\"\"\"");
    EXPECT_EQ(labelField("1=1"), "1=1");
}

TEST(Csv, PathsAndNoticesHaveSecondsSinceTheStart) {
    MissionRecord record = visit();
    record.visitorPath = {{14, 88}, {14.25, -87.5}};
    record.dronePath = {{74, 70.75}, {75, 70}, {76, 69}};
    record.notices = {{{}, record.start + Seconds{1.5}, "Airborne, at \"15 m\"", Notice::Level::info}};
    EXPECT_EQ(pathsCsv(record), "seconds,who,x,y,text\r\n"
                                "0,visitor,14,88,\r\n"
                                "0.5,visitor,14.25,-87.5,\r\n"
                                "1,drone,74,70.75,\r\n"
                                "1.5,drone,75,70,\r\n"
                                "2,drone,76,69,\r\n"
                                "1.5,notice,,,\"Airborne, at \"\"15 m\"\"\"\r\n");
}

} // namespace velmora
