#include "app/navigation.h"
#include "tests/support/window_test.h"

#include <QListWidget>

namespace {

using ConjugationDrill = tests::WindowTest;

TEST_F(ConjugationDrill, OpensFromTheMainWindow)
{
    tests::copySample("verbs.cfg");
    app::Navigation navigation;
    navigation.start();
    tests::click(*tests::shownWindow("MainMenu"), "ConjugationButton");
    QWidget* const chooser = tests::shownWindow("ConjugationChoose");
    ASSERT_NE(chooser, nullptr);
    tests::doubleClickRow(tests::control<QListWidget>(*chooser, "ConjugationList"), 0);
    ASSERT_NE(tests::shownWindow("Conjugation"), nullptr);
}

} // namespace
