// SPDX-License-Identifier: MIT
#include "automation/text.h"
#include "variables_test.h"

namespace hx::cli {

namespace {

class VariablesInPlcopen : public VariableLists {
  protected:
    // A project in the form of TC6 with these types, units and global variables.
    static std::string tc6(const std::string& types, const std::string& units, const std::string& globals) {
        return "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n"
               "<project xmlns=\"http://www.plcopen.org/xml/tc6_0201\" xmlns:h=\"http://www.w3.org/1999/xhtml\">\n"
               "<types><dataTypes>" +
               types + "</dataTypes><pous>" + units +
               "</pous></types>\n"
               "<instances><configurations><configuration name=\"C\"><resource name=\"R\">\n<globalVars>" +
               globals + "</globalVars></resource></configuration></configurations></instances></project>\n";
    }
    // The same in the form of IEC 61131-10.
    static std::string iec(const std::string& types, const std::string& globals) {
        return "<p:Project xmlns:p=\"www.iec.ch/public/TC65SC65BWG7TF10\" "
               "xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\">\n"
               "<p:Types><p:GlobalNamespace>" +
               types +
               "</p:GlobalNamespace></p:Types>\n"
               "<p:Instances><p:Configuration name=\"C\"><p:Resource name=\"R\">\n<p:GlobalVars>" +
               globals + "</p:GlobalVars></p:Resource></p:Configuration></p:Instances></p:Project>\n";
    }
    static std::string variable(const std::string& name, const std::string& type) {
        return "<variable name=\"" + name + "\"><type>" + type + "</type></variable>";
    }
    static std::string typed(const std::string& name, const std::string& type) {
        return "<p:Variable name=\"" + name + "\"><p:Type><p:TypeName>" + type + "</p:TypeName></p:Type></p:Variable>";
    }
    static std::string dataType(const std::string& name, const std::string& type) {
        return "<dataType name=\"" + name + "\"><baseType>" + type + "</baseType></dataType>";
    }
    static std::string derived(const std::string& name) { return "<derived name=\"" + name + "\"/>"; }
    static std::string array(const std::string& lower, const std::string& upper, const std::string& type) {
        return "<array><dimension lower=\"" + lower + "\" upper=\"" + upper + "\"/><baseType>" + type +
               "</baseType></array>";
    }

    std::string imported(const std::string& text, const std::string& notes = "") {
        sqlite::Database(file_).execute("DELETE FROM ThxVariable WHERE ID > 2");
        const std::string list = write("project.xml", text);
        const Result result = import(list);
        EXPECT_EQ(result.status, 0) << result.problems;
        EXPECT_EQ(result.problems, notes.empty() ? "" : "hxrecipe: " + list + ", " + notes + "\n");
        return added();
    }
    std::string globals(const std::string& variables, const std::string& notes = "") {
        return imported(tc6("", "", variables), notes);
    }
    std::string refused(const std::string& text) { return problem("project.xml", text); }
};

TEST_F(VariablesInPlcopen, GlobalOnesKeepTheirNames) {
    EXPECT_EQ(globals("<variable name=\"Start\" address=\"%I0.0\"><type><BOOL/></type><initialValue><simpleValue "
                      "value=\"TRUE\"/></initialValue><documentation><h:p>Starts  the\n<h:b>mixer</h:b></h:p>"
                      "</documentation></variable>" +
                      variable("Text", "<string length=\"80\"/>") + variable("Wide", "<wstring/>")),
              "Start|BOOL|Starts the mixer,Text|STRING[80]|,Wide|WSTRING|");
}

TEST_F(VariablesInPlcopen, GlobalOnesAreFoundInConfigurationsAndAdditionalData) {
    EXPECT_EQ(
        imported("<project><addData><data name=\"x\"><globalVars name=\"Lists\">" + variable("A", "<INT/>") +
                 "</globalVars></data></addData><instances><configurations><configuration><globalVars>" +
                 variable("B", "<INT/>") + "</globalVars></configuration></configurations></instances></project>"),
        "A|INT|,B|INT|");
}

TEST_F(VariablesInPlcopen, StructuresBecomeDottedNames) {
    const std::string axis =
        dataType("Axis",
                 "<struct><variable name=\"Pos\"><type><LREAL/></type><documentation><h:p>mm</h:p></documentation>"
                 "</variable>" +
                     variable("Limits", derived("LIMITS")) + "</struct>");
    const std::string limits =
        dataType("Limits", "<struct>" + variable("Low", "<REAL/>") + variable("High", "<REAL/>") + "</struct>");
    EXPECT_EQ(imported(tc6(axis + limits, "",
                           "<variable name=\"X\"><type>" + derived("axis") +
                               "</type><documentation><h:p>The axis</h:p></documentation></variable>")),
              "X.Pos|LREAL|mm,X.Limits.Low|REAL|The axis,X.Limits.High|REAL|The axis");
}

TEST_F(VariablesInPlcopen, ArraysBecomeIndexedNames) {
    EXPECT_EQ(globals(variable("A", array("-1", "1", "<INT/>"))), "A[-1]|INT|,A[0]|INT|,A[1]|INT|");
    EXPECT_EQ(globals(variable("A",
                               "<array><dimension lower=\"1\" upper=\"2\"/><dimension lower=\"0\" upper=\"1\"/>"
                               "<baseType><BOOL/></baseType></array>")),
              "A[1,0]|BOOL|,A[1,1]|BOOL|,A[2,0]|BOOL|,A[2,1]|BOOL|");
    EXPECT_EQ(
        globals(variable("A", array("1", "1", array("2", "3", "<struct>" + variable("S", "<INT/>") + "</struct>")))),
        "A[1][2].S|INT|,A[1][3].S|INT|");
}

TEST_F(VariablesInPlcopen, DerivedTypesAreFollowedToTheirBase) {
    const std::string types =
        dataType("Percent",
                 "<subrangeSigned><range lower=\"0\" upper=\"100\"/><baseType><INT/></baseType>"
                 "</subrangeSigned>") +
        dataType("Fill", derived("Percent")) + dataType("Mode", "<enum><values><value name=\"off\"/></values></enum>") +
        dataType("Small", "<enum><values><value name=\"off\"/></values><baseType><BYTE/></baseType></enum>") +
        dataType("Link", "<pointer><baseType>" + derived("Link") + "</baseType></pointer>");
    EXPECT_EQ(imported(tc6(types, "",
                           variable("A", derived("Fill")) + variable("B", derived("Mode")) +
                               variable("C", derived("Small")) + variable("D", derived("Link")))),
              "A|INT|,B|INT|,C|BYTE|,D|POINTER|");
}

TEST_F(VariablesInPlcopen, ThoseOfProgramsHaveItsNameInFront) {
    const std::string lists = "<interface><localVars>" + variable("L", "<INT/>") + "</localVars><inputVars>" +
                              variable("I", "<INT/>") + "</inputVars><localVars retain=\"true\">" +
                              variable("R", derived("Valve")) + "</localVars><outputVars>" + variable("O", "<INT/>") +
                              "</outputVars><inOutVars>" + variable("IO", "<INT/>") + "</inOutVars><tempVars>" +
                              variable("T", "<INT/>") + "</tempVars><externalVars>" + variable("E", "<INT/>") +
                              "</externalVars></interface>"
                              "<body><FBD><variable name=\"Drawn\"><type><INT/></type></variable></FBD></body>";
    const std::string units = "<pou name=\"Main\" pouType=\"program\">" + lists + "</pou>" +
                              "<pou name=\"Valve\" pouType=\"functionBlock\">" +
                              automation::replaceAll(lists, derived("Valve"), "<INT/>") + "</pou>" +
                              "<pou name=\"Sum\" pouType=\"function\">" + lists + "</pou>";
    EXPECT_EQ(imported(tc6("", units, variable("V", derived("valve")))),
              "V.I|INT|,V.O|INT|,Main.L|INT|,Main.I|INT|,Main.R.I|INT|,Main.R.O|INT|,Main.O|INT|,Main.IO|INT|");
}

TEST_F(VariablesInPlcopen, TypesThatAreNotDeclaredAreTakenAsTheyAre) {
    EXPECT_EQ(globals(variable("A", derived("TON")) + variable("B", derived("TON")),
                      "the type \"TON\" is not declared in the file; 2 of it taken as they are"),
              "A|TON|,B|TON|");
}

TEST_F(VariablesInPlcopen, TheFormOfIec61131IsReadAsWell) {
    const std::string types =
        "<p:DataTypeDecl name=\"Tank\"><p:UserDefinedTypeSpec xsi:type=\"p:StructTypeSpec\">"
        "<p:Member name=\"Level\"><p:Documentation xsi:type=\"SimpleText\">litres</p:Documentation><p:Type><p:TypeName>"
        "REAL</p:TypeName></p:Type></p:Member><p:Member name=\"Mode\"><p:Type><p:TypeName>Lib\\Mode</p:TypeName>"
        "</p:Type></p:Member></p:UserDefinedTypeSpec></p:DataTypeDecl>"
        "<p:NamespaceDecl name=\"Lib\"><p:DataTypeDecl name=\"Mode\"><p:UserDefinedTypeSpec "
        "xsi:type=\"EnumTypeWithNamedValueSpec\"><p:BaseType><p:TypeName>USINT</p:TypeName></p:BaseType>"
        "</p:UserDefinedTypeSpec></p:DataTypeDecl></p:NamespaceDecl>"
        "<p:FunctionBlock name=\"Valve\"><p:Parameters><p:InputVars>" +
        typed("Open", "BOOL") + "</p:InputVars><p:InoutVars>" + typed("Hidden", "INT") +
        "</p:InoutVars></p:Parameters><p:Vars>" + typed("Inner", "INT") +
        "</p:Vars></p:FunctionBlock>"
        "<p:Program name=\"Main\"><p:ExternalVars>" +
        typed("T", "Tank") +
        "</p:ExternalVars><p:Vars "
        "accessSpecifier=\"private\">" +
        typed("V", "valve") + "</p:Vars></p:Program>";
    const std::string tanks =
        "<p:Variable name=\"T\"><p:Type><p:InstantlyDefinedType xsi:type=\"ArrayTypeSpec\"><p:BaseType><p:TypeName>"
        "Tank</p:TypeName></p:BaseType><p:DimensionSpec dimensionNumber=\"1\"><p:IndexRange lower=\"0\" upper=\"1\"/>"
        "</p:DimensionSpec></p:InstantlyDefinedType></p:Type></p:Variable>" +
        typed("S", "STRING[16]");
    EXPECT_EQ(imported(iec(types, tanks)),
              "T[0].Level|REAL|litres,T[0].Mode|USINT|,T[1].Level|REAL|litres,T[1].Mode|USINT|,S|STRING[16]|,"
              "Main.V.Open|BOOL|");
}

TEST_F(VariablesInPlcopen, AreReadInTheEncodingThatTheFileDeclares) {
    const std::string text = "<?xml version='1.0' encoding='iso-8859-1'?><project><globalVars>" +
                             variable("\xD6l", "<REAL/>") + "</globalVars></project>";
    EXPECT_EQ(imported(text), "Öl|REAL|");
    std::string wide = "\xFF\xFE";
    for (const char c : text) wide.append(1, c).append(1, '\0');
    EXPECT_EQ(imported(wide), "Öl|REAL|");
    EXPECT_EQ(import(write("list.csv", text)).status, 0);
}

TEST_F(VariablesInPlcopen, ArraysThatAreTooLargeAreLeftOutAndNamed) {
    EXPECT_EQ(globals(variable("A", array("1", "2000000000", "<BYTE/>")) + variable("B", "<INT/>"),
                      "line 5: \"A\" is left out: the array has more than 10000 elements"),
              "B|INT|");
    EXPECT_EQ(globals(variable("A", array("1", "MAX", "<BYTE/>")) + variable("B", "<INT/>"),
                      "line 5: \"A\" is left out: the bound \"MAX\" of the array is no number"),
              "B|INT|");
}

TEST_F(VariablesInPlcopen, LongCommentsAreCutAndCounted) {
    const std::string list = "<variable name=\"A\"><type><INT/></type><documentation>" + std::string(300, 'c') +
                             "</documentation></variable>";
    EXPECT_EQ(globals(list, "1 comments cut to 255 characters"), "A|INT|" + std::string(255, 'c'));
}

TEST_F(VariablesInPlcopen, LongNamesOfTypesAreCutAndCounted) {
    EXPECT_EQ(globals(variable("A", derived("T_OF_A_LIBRARY_PUMP_7")),
                      "the type \"T_OF_A_LIBRARY_PUMP_7\" is not declared in the file; 1 of it taken as they are\n"
                      "hxrecipe: " +
                          folder_.file("project.xml") + ", 1 types cut to 20 characters"),
              "A|T_OF_A_LIBRARY_PUMP_|");
}

TEST_F(VariablesInPlcopen, ATypeThatContainsItselfIsNamed) {
    const std::string types = dataType("A", "<struct>" + variable("B", derived("B")) + "</struct>") + "\n" +
                              dataType("B", array("1", "2", derived("a")));
    EXPECT_EQ(refused(tc6(types, "", variable("X", derived("B")))),
              "line 4: the type \"B\" contains itself: \"B\" -> \"A\" -> \"B\"\n");
}

TEST_F(VariablesInPlcopen, TypesThatUnfoldWithoutEndAreRefused) {
    std::string deep = "<INT/>";
    for (int i = 0; i < 300; ++i) deep = array("1", "1", deep);
    EXPECT_EQ(refused(tc6("", "", variable("X", deep))), "line 5: the types are nested too deeply\n");
}

TEST_F(VariablesInPlcopen, BadInputIsNamedWithLineAndField) {
    EXPECT_EQ(refused("<project>\n<types>\n</project>"), "line 3: this is no XML: Start-end tags mismatch\n");
    EXPECT_EQ(refused("not XML at all"), "line 1: this is no XML: No document element found\n");
    EXPECT_EQ(refused(""), "line 1: this is no XML: No document element found\n");
    EXPECT_EQ(refused("<?xml version='1.0'?>\n<html/>"),
              "line 2: this is no PLCopen project: the root element is <html>\n");
    EXPECT_EQ(refused("<project>\n<globalVars>\n<variable><type><INT/></type></variable></globalVars></project>"),
              "line 3: \"name\": a variable has no name\n");
    EXPECT_EQ(refused("<project><globalVars>\n<variable name=\"A\"/></globalVars></project>"),
              "line 2: \"type\": the variable \"A\" has no type\n");
    EXPECT_EQ(refused("<project><globalVars>\n<variable name=\"A\"><type/></variable></globalVars></project>"),
              "line 2: \"type\": \"A\" has no type\n");
    EXPECT_EQ(refused(tc6("", "", variable("A", array("2", "1", "<INT/>")))),
              "line 5: \"upper\": the array \"A\" ends before it begins\n");
    EXPECT_EQ(refused(tc6("", "", variable("A", "<INT/>") + "\n" + variable("a", "<REAL/>"))),
              "line 6: \"Name\": \"a\" is on line 5 too, with another type or comment\n");
    EXPECT_EQ(refused(tc6(dataType("T", "<INT/>") + "\n" + dataType("t", "<REAL/>"), "", variable("A", derived("T")))),
              "line 6: the type \"T\" is declared more than once: on line 3 and on line 4\n");
    EXPECT_EQ(refused(tc6("", "", variable(std::string(250, 'n'), array("1000", "1000", "<INT/>")))).substr(0, 17),
              "line 5: \"Name\": \"");
    EXPECT_EQ(refused("<?xml version=\"1.0\" encoding=\"klingon\"?><project/>"),
              "line 1: the encoding \"klingon\" is unknown\n");
    EXPECT_EQ(refused("<project>\n\xE4</project>"), "line 2: the byte 0xE4 is no text in UTF-8\n");
}

TEST_F(VariablesInPlcopen, AProjectWithoutVariablesIsRefused) {
    const std::string list = write("project.xml", tc6("", "", ""));
    EXPECT_EQ(import(list).problems, "hxrecipe: There are no variables in " + list + "\n");
}

}  // namespace

}  // namespace hx::cli
