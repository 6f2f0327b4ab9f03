/// What a test leaves on the desktop is cleared away before the next one begins.
#pragma once

#include <gtest/gtest.h>

namespace quorvel::test {

/// Listens to the tests of a program that shows windows. After each of them it closes the pop-ups
/// that are still open, lets go of the buttons of the mouse that are still held and deletes what
/// waits for it. A window that is still on the screen fails the test that left it: it would take
/// the keys of the next one.
class CleanDesk : public ::testing::EmptyTestEventListener {
  public:
    void OnTestEnd(const ::testing::TestInfo& test) override;
};

}  // namespace quorvel::test
