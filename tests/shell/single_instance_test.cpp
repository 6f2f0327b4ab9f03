// One editor at a time: who is the first, and what the others hand over.
#include "shell/single_instance.h"

#include <atomic>
#include <barrier>
#include <gtest/gtest.h>
#include <thread>
#include <vector>

#include <QLocalSocket>
#include <QRandomGenerator>

#include "support/windows/played_author.h"

namespace quorvel::test {
namespace {

using shell::SingleInstance;
using Claim = SingleInstance::Claim;

class OneEditor : public ::testing::Test {
  protected:
    /// Notes what `instance` is handed.
    void listen(SingleInstance& instance) {
        QObject::connect(&instance, &SingleInstance::activationAsked,
                         [this](const QStringList& projects) { heard.push_back(projects); });
    }
    /// Sends bytes as no editor does and waits until the first one hangs up.
    void expectHungUp(const QByteArray& bytes) {
        QLocalSocket visitor;
        visitor.connectToServer(name);
        visitor.write(bytes);
        ASSERT_TRUE(waitUntil(
            [&visitor] { return visitor.state() == QLocalSocket::UnconnectedState; }, 60000));
        EXPECT_TRUE(heard.empty());
    }
    static QByteArray head(quint32 sign, quint32 bytes) {
        QByteArray head(reinterpret_cast<const char*>(&sign), sizeof sign);
        head += QByteArray(reinterpret_cast<const char*>(&bytes), sizeof bytes);
        return head;
    }
    const QString name =
        QStringLiteral("quorvel-test-%1").arg(QRandomGenerator::global()->generate());
    std::vector<QStringList> heard;
};

TEST_F(OneEditor, ASecondOneHandsItsProjectsToTheFirst) {
    SingleInstance first(name);
    listen(first);
    EXPECT_EQ(first.claim({QStringLiteral("/own.qvl")}), Claim::first);
    const QStringList projects{QStringLiteral("/a b/Caf\u00e9.qvl"),
                               QStringLiteral("/two\nlines.qvl"), QString(QChar(0xD800))};
    EXPECT_EQ(SingleInstance(name).claim(projects), Claim::handed) << "and is gone";
    ASSERT_TRUE(waitUntil([this] { return heard.size() == 1; }));
    EXPECT_EQ(heard.front(), projects);
    EXPECT_EQ(SingleInstance(name).claim(), Claim::handed);
    ASSERT_TRUE(waitUntil([this] { return heard.size() == 2; }));
    EXPECT_TRUE(heard.back().isEmpty());
}

TEST_F(OneEditor, WhatIsHandedOverIsBounded) {
    SingleInstance first(name);
    listen(first);
    ASSERT_EQ(first.claim(), Claim::first);
    const QStringList projects(40, QString(1000, u'x'));
    EXPECT_EQ(SingleInstance(name).claim(projects), Claim::notAll);
    ASSERT_TRUE(waitUntil([this] { return heard.size() == 1; }));
    EXPECT_EQ(heard.front(), projects.mid(0, 32));
}

TEST_F(OneEditor, StrangersAreNotListenedTo) {
    SingleInstance first(name);
    listen(first);
    ASSERT_EQ(first.claim(), Claim::first);
    expectHungUp("GET / HTTP/1.1\r\n\r\n");
    expectHungUp(head(0x51565331, 0x7FFFFFFF));
    expectHungUp(head(0x51565331, 3) + "abc");
    expectHungUp(head(0x51565331, 2) + "abcdef");
    expectHungUp(head(0x51565331, 4) + "ab");  // and then nothing more
}

TEST_F(OneEditor, ACrowdThatSaysNothingDoesNotKeepItsPlaces) {
    SingleInstance first(name);
    listen(first);
    ASSERT_EQ(first.claim(), Claim::first);
    std::vector<std::unique_ptr<QLocalSocket>> crowd;
    for (int i = 0; i < 2 * SingleInstance::kMostVisitors; ++i) {
        crowd.push_back(std::make_unique<QLocalSocket>());
        crowd.back()->connectToServer(name);
    }
    const auto isGone = [](const auto& one) {
        return one->state() == QLocalSocket::UnconnectedState;
    };
    ASSERT_TRUE(waitUntil([&] { return std::all_of(crowd.begin(), crowd.end(), isGone); }, 60000));
    EXPECT_EQ(SingleInstance(name).claim({QStringLiteral("/a.qvl")}), Claim::handed);
    EXPECT_TRUE(waitUntil([this] { return heard.size() == 1; }));
}

TEST_F(OneEditor, OneThatEndedDoesNotCount) {
    EXPECT_EQ(SingleInstance(name).claim(), Claim::first);
    EXPECT_EQ(SingleInstance(name).claim(), Claim::first);
}

TEST_F(OneEditor, OfSeveralThatStartAtTheSameMomentOneIsTheFirst) {
    for (int round = 0; round < 20; ++round) {
        constexpr int kEditors = 4;
        std::barrier together(kEditors);
        std::barrier answered(kEditors);
        std::atomic<int> firsts = 0;
        std::vector<std::thread> editors;
        for (int i = 0; i < kEditors; ++i) {
            editors.emplace_back([&] {
                SingleInstance instance(name);
                together.arrive_and_wait();
                firsts += instance.claim() == Claim::first ? 1 : 0;
                answered.arrive_and_wait();
            });
        }
        for (std::thread& editor : editors) {
            editor.join();
        }
        ASSERT_EQ(firsts, 1) << round;
    }
}

}  // namespace
}  // namespace quorvel::test
