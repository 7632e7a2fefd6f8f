#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <sstream>

#include "program_test.h"

namespace {

/// The menu tree as the screen has it: level, object name, caption in bars, and whether it is disabled.
void draw(const QList<QAction*>& actions, int level, std::ostream& out) {
  for (const QAction* action : actions) {
    const QObject* named = action->menu() != nullptr ? static_cast<const QObject*>(action->menu()) : action;
    out << level << ' ' << named->objectName().toStdString() << " |" << action->text().toStdString() << '|'
        << (action->isEnabled() ? "" : " disabled") << '\n';
    if (action->menu() != nullptr) draw(action->menu()->actions(), level + 1, out);
  }
}

using MenuTree = testing_aids::ProgramTest;

TEST_F(MenuTree, stands_as_designed_with_every_trailing_blank) {
  std::ostringstream tree;
  draw(program.mdiform1.window().menuBar()->actions(), 1, tree);
  EXPECT_EQ(tree.str(),
            "1 Inputs |Inputs|\n"
            "2 Zones |Edit Number of Zones |\n"
            "2 Districts |Edit Number of Districts|\n"
            "2 travdata_entry |Travel Data Entry |\n"
            "3 Times |Travel Times and Distances|\n"
            "3 Commuter |Commuter Travel|\n"
            "4 Comm_pop |Create Population and Employment by Occupation|\n"
            "3 Commercial |Commercial Travel|\n"
            "4 CommerTdata |Create Trip Data by Industry|\n"
            "4 mnu_tonstotrucks |Convert Tons to Trucks|\n"
            "2 edit_params |Edit Parameters|\n"
            "3 Commuteparam |Commuter Parameters|\n"
            "4 commute_param_sw |Wages and Elasticity of Substitution (sigma) |\n"
            "4 Commute_param_ms |Mode Shares|\n"
            "3 Commerparam |Commercial Parameters|\n"
            "2 mnu_rel |Reliability|\n"
            "1 Run |Run Model|\n"
            "2 spec_timdist |Specify Time and Distance Files|\n"
            "2 spec_CuCo |Specify Commuting or Commercial Files| disabled\n"
            "3 spec_comm |Specify Commuting Files | disabled\n"
            "3 Spec_commercial |Specify Commercial Files| disabled\n"
            "1 Mnu_exit |Exit|\n");
}

}  // namespace
