#include "forms/form3.h"

#include <gtest/gtest.h>

#include "design_drawing.h"

namespace {

using testing_aids::drawn_like;

TEST(Form3Design, has_the_captions_bindings_and_states_that_its_pages_build_on) {
  const std::string expected = R"x(Data1(0) "Data1" hidden table Anfiles
Data1(1) "Data1" hidden table timdist
Data1(2) "Data1" hidden table Anfiles
cdbox1 "" hidden
Command1(1) "Agriculture Trips"
Command1(2) "Mining Trips"
Command1(4) "Manufacturing Trips"
Command1(9) "Service Trips"
Text1(0) "" hidden disabled Data1(0).Agfile
Text1(1) "" hidden disabled Data1(0).Agfile
Text1(2) "" hidden disabled Data1(0).Minfile
Text1(8) "" hidden disabled Data1(0).Minfile
Text1(4) "" hidden disabled Data1(0).Manfile
Text1(9) "" hidden disabled Data1(0).Serfile
Command4(5) "Distance File" hidden
Command4(6) "Base Time File" hidden
Command4(7) "Improvement Time File" hidden
Text1(5) "" hidden disabled Data1(1).distance
Text1(6) "" hidden disabled Data1(1).base_time
Text1(7) "" hidden disabled Data1(1).improvement_time
Command10(0) "" hidden
Command10(1) "" hidden
Command10(2) "" hidden
Command10(3) "" hidden
Command10(4) "" hidden
Command10(5) "" hidden
Command10(6) "" hidden
Command10(7) "" hidden
Command10(8) "" hidden
Command10(9) "" hidden
Command10(10) "" hidden
Command10(11) "" hidden
Command10(12) "" hidden
Text5(0) "" hidden disabled Data1(2).Prodfile
Text5(1) "" hidden disabled Data1(2).Tranfile
Text5(2) "" hidden disabled Data1(2).Execfile
Text5(3) "" hidden disabled Data1(2).Techfile
Text5(4) "" hidden disabled Data1(2).Machfile
Text5(5) "" hidden disabled Data1(2).Protectfile
Text5(6) "" hidden disabled Data1(2).Laborerfile
Text5(7) "" hidden disabled Data1(2).Salesfiles
Text5(8) "" hidden disabled Data1(2).Professfiles
Text5(9) "" hidden disabled Data1(2).Adminfiles
Text5(10) "" hidden disabled Data1(2).Housekeepfiles
Text5(11) "" hidden disabled Data1(2).Occservicefiles
Text5(12) "" hidden disabled Data1(2).OccOutfile
Text5(13) "" hidden disabled Data1(2).OccOutfile
Text6 "" hidden disabled Data1(2).OccOutfile
Command12 "Output File" hidden
Command5 "Output File"
Text2 "" hidden disabled Data1(0).foutfile
Command7 "District File" hidden
Text3 "" hidden disabled Data1(0).Distrfile
Command9 "Reliability File" hidden
Text4 "" hidden disabled Data1(0).relFile
Command15 "Commodity File" hidden
Text7 "" hidden disabled Data1(0).TonsFile
Command13 "Convert Tons to Trucks" hidden
Command14 "Quit" hidden
Frame1 "Options"
Option4(0) "Use Sketch-Planning Data" in Frame1
Option4(1) "Supply Reliability File" in Frame1
Option4(2) "Don't Use in Analysis" in Frame1
Label1 "Reliability " in Frame1
Check1 "Use District File?" in Frame1
Command11 "Run Commuter Analysis" in Frame1 hidden
Command2 "Run Commercial Analysis" in Frame1 disabled
Command8 "Save" in Frame1
Command6 "Save" in Frame1 hidden
Command3 "Quit" in Frame1
Line1 "" in Frame1
Line2 "" in Frame1
Line3 "" in Frame1
Label2 ""
Label3 "Output files are named <inputfile>"_trip.txt"" hidden
Label4 "Inputs must be in annual tons" hidden
)x";
  EXPECT_EQ(drawn_like(expected, forms::form3_design(), {.container = true, .state = true, .binding = true}),
            expected);
}

}  // namespace
