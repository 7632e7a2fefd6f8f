#include "forms/mdiform1.h"

#include <array>

#include "runtime/forms/desktop.h"

namespace forms {

namespace {

using runtime::forms::MenuDesign;

constexpr const char* caption = "QUELAR 4-17 COST OF DELAY STUDY";
constexpr const char* picture = ":/quelar/main_window.png";

constexpr std::array menu{
    MenuDesign{1, "Inputs", "Inputs", true},
    MenuDesign{2, "Zones", "Edit Number of Zones ", true},
    MenuDesign{2, "Districts", "Edit Number of Districts", true},
    MenuDesign{2, "travdata_entry", "Travel Data Entry ", true},
    MenuDesign{3, "Times", "Travel Times and Distances", true},
    MenuDesign{3, "Commuter", "Commuter Travel", true},
    MenuDesign{4, "Comm_pop", "Create Population and Employment by Occupation", true},
    MenuDesign{3, "Commercial", "Commercial Travel", true},
    MenuDesign{4, "CommerTdata", "Create Trip Data by Industry", true},
    MenuDesign{4, "mnu_tonstotrucks", "Convert Tons to Trucks", true},
    MenuDesign{2, "edit_params", "Edit Parameters", true},
    MenuDesign{3, "Commuteparam", "Commuter Parameters", true},
    MenuDesign{4, "commute_param_sw", "Wages and Elasticity of Substitution (sigma) ", true},
    MenuDesign{4, "Commute_param_ms", "Mode Shares", true},
    MenuDesign{3, "Commerparam", "Commercial Parameters", true},
    MenuDesign{2, "mnu_rel", "Reliability", true},
    MenuDesign{1, "Run", "Run Model", true},
    MenuDesign{2, "spec_timdist", "Specify Time and Distance Files", true},
    MenuDesign{2, "spec_CuCo", "Specify Commuting or Commercial Files", false},
    MenuDesign{3, "spec_comm", "Specify Commuting Files ", false},
    MenuDesign{3, "Spec_commercial", "Specify Commercial Files", false},
    MenuDesign{1, "Mnu_exit", "Exit", true},
};

}  // namespace

std::span<const MenuDesign> mdiform1_menu() {
  return menu;
}

bool MenuItem::is_enabled() const {
  return form_.window().item_enabled(name_);
}
void MenuItem::set_enabled(bool enabled) {
  form_.window().set_item_enabled(name_, enabled);
}

MDIForm1::MDIForm1(runtime::forms::Desktop& desktop)
    : window_(desktop, caption, QString::fromLatin1(picture), menu) {
  window_.setObjectName(QStringLiteral("MDIForm1"));
}

void MDIForm1::Show() {
  window_.show();
  window_.raise();
}

}  // namespace forms
