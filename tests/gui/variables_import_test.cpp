// SPDX-License-Identifier: MIT
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFile>
#include <QFileDialog>
#include <QPushButton>
#include <QStatusBar>

#include "gui/variables_fixture.h"

namespace hx::gui {
namespace {

using Texts = std::vector<std::string>;

class StudioVariableLists : public StudioVariables {
  protected:
    [[nodiscard]] QString write(const QString& name, const QByteArray& text) {
        QFile list(folder.filePath(name));
        EXPECT_TRUE(list.open(QIODevice::WriteOnly));
        list.write(text);
        return list.fileName();
    }
    /// Chooses the list and acts on the dialog of the import.
    void import(const QString& list, const std::function<void(QDialog&)>& action) {
        std::optional<NextModal<QDialog>> dialog;
        const NextModal<QFileDialog> choice([&](QFileDialog& chooser) {
            dialog.emplace(action);
            choose(chooser, list);
        });
        this->action("actionImportVariables").trigger();
        handleEvents();
    }
    static void choose(QFileDialog& chooser, const QString& path) {
        find<QLineEdit>(chooser, "fileNameEdit").setText(path);
        QMetaObject::invokeMethod(&chooser, "accept");
    }
    static Texts rowsOf(QDialog& dialog) {
        const QAbstractItemModel& model = *find<QTableView>(dialog, "importRows").model();
        Texts texts;
        for (int row = 0; row < model.rowCount(); ++row) {
            QStringList columns;
            for (int column = 0; column < model.columnCount(); ++column)
                columns << model.index(row, column).data().toString();
            texts.push_back(qt::fromQt(columns.join('|')));
        }
        return texts;
    }
    static std::string counts(QDialog& dialog) { return find<QLabel>(dialog, "importCounts").text().toStdString(); }
    static std::string notes(QDialog& dialog) { return find<QLabel>(dialog, "importNotes").text().toStdString(); }
    static bool isRead(QDialog& dialog) {
        return waitUntil([&] { return counts(dialog) != "Liest …" && !counts(dialog).empty(); });
    }
    static QPushButton& button(QDialog& dialog, QDialogButtonBox::StandardButton which) {
        return *find<QDialogButtonBox>(dialog, "").button(which);
    }
    static void choose(QDialog& dialog, const char* name, const QString& text) {
        auto& box = find<QComboBox>(dialog, name);
        const int at = box.findText(text);
        ASSERT_GE(at, 0) << qt::fromQt(text);
        box.setCurrentIndex(at);
        emit box.activated(at);
    }
};

TEST_F(StudioVariableLists, AreShownBeforeTheyAreImportedInOneStep) {
    showVariables();
    const QString list = write("list.csv",
                               "# Version 1\r\nName;Address;Type;Rate;Comment\r\nBand.Tempo;1;REAL;100;m/s\r\n"
                               "mischer.wasser;2;INT;100;in Liter\r\nDatei.Limonade;3;STRING;100;\r\n");
    import(list, [](QDialog& dialog) {
        ASSERT_TRUE(isRead(dialog));
    EXPECT_EQ(counts(dialog), "1 neu, 1 geändert, 1 unverändert");
    EXPECT_EQ(rowsOf(dialog), (Texts{"neu|Band.Tempo|REAL|m/s", "geändert|Mischer.Wasser|REAL → INT|in Liter"}));
    EXPECT_EQ(notes(dialog),
              "die Zeile vor der Kopfzeile wird nicht gelesen\n"
              "die Spalten \"Address\", \"Rate\" werden nicht gelesen");
    find<QComboBox>(dialog, "importKinds").setCurrentIndex(3);
    EXPECT_EQ(rowsOf(dialog), Texts{"unverändert|Datei.Limonade|STRING|"});
    EXPECT_EQ(find<QComboBox>(dialog, "importType").currentText().toStdString(), "Type");
    button(dialog, QDialogButtonBox::Ok).click();
});
EXPECT_EQ(window().statusBar()->currentMessage().toStdString(), "Variablen: 1 neu, 1 geändert, 1 unverändert");
EXPECT_TRUE(comeRows({"Band.Tempo|REAL|m/s|0", "Datei.Limonade|STRING||1", "Mischer.Apfelsaft|REAL||1",
                      "Mischer.Wasser|INT|in Liter|1"}));
EXPECT_EQ(step(), "&Rückgängig: Variablen importiert: list.csv");
undo();
EXPECT_TRUE(comeRows({"Datei.Limonade|STRING||1", "Mischer.Apfelsaft|REAL||1", "Mischer.Wasser|REAL|in Liter|1"}));
}  // namespace

TEST_F(StudioVariableLists, AreReadByTheColumnsAndTheEncodingThatTheUserChooses) {
    showVariables();
    import(write("list.csv", "INT;K\xFC" "hler;x;y\nREAL;\xD6l;x;y\n"), [](QDialog& dialog) {
        ASSERT_TRUE(isRead(dialog));
    EXPECT_EQ(counts(dialog).find("Zeile 1: 4 Spalten; es gibt 3: Name, Typ, Kommentar") != std::string::npos, true)
        << counts(dialog);
    EXPECT_FALSE(button(dialog, QDialogButtonBox::Ok).isEnabled());
    choose(dialog, "importName", "Spalte 2 (Kühler)");
    choose(dialog, "importType", "Spalte 1 (INT)");
    choose(dialog, "importComment", "(keine)");
    ASSERT_TRUE(isRead(dialog));
    EXPECT_EQ(rowsOf(dialog), (Texts{"neu|Kühler|INT|", "neu|Öl|REAL|"}));
    choose(dialog, "importEncoding", "UTF-8");
    ASSERT_TRUE(isRead(dialog));
    EXPECT_NE(counts(dialog).find("das Byte 0xFC ist kein Text in UTF-8"), std::string::npos) << counts(dialog);
    dialog.reject();
});
EXPECT_EQ(rows().size(), 3U);
}  // namespace hx::gui

TEST_F(StudioVariableLists, MayBePlcopenProjects) {
    showVariables();
    const QString list = write("list.xml",
                               "<?xml version=\"1.0\"?><project><instances><configurations><configuration name=\"c\">"
                               "<globalVars><variable name=\"Band\"><type><BOOL/></type></variable></globalVars>"
                               "</configuration></configurations></instances></project>");
    import(list, [](QDialog& dialog) {
        ASSERT_TRUE(isRead(dialog));
    EXPECT_EQ(rowsOf(dialog), Texts{"neu|Band|BOOL|"});
    EXPECT_FALSE(find<QComboBox>(dialog, "importName").isEnabled());
    button(dialog, QDialogButtonBox::Ok).click();
});
EXPECT_TRUE(waitUntil([this] { return rows().size() == 4; }));
}

TEST_F(StudioVariableLists, ThatAreGivenUpLeaveTheProjectAsItWas) {
    showVariables();
    QByteArray text;
    for (int i = 0; i < 20'000; ++i) text += "V" + QByteArray::number(i) + ";INT\n";
    import(write("list.csv", text), [](QDialog& dialog) {
        ASSERT_TRUE(isRead(dialog));
    ASSERT_EQ(counts(dialog), "20.000 neu, 0 geändert, 0 unverändert");
    const Once cancel([&] { return !button(dialog, QDialogButtonBox::Ok).isEnabled(); }, [&] { dialog.reject(); });
    button(dialog, QDialogButtonBox::Ok).click();
    EXPECT_EQ(counts(dialog), "Abgebrochen: Es wurde nichts importiert");
    EXPECT_TRUE(dialog.isVisible());
    dialog.reject();
});
EXPECT_EQ(rows().size(), 3U);
EXPECT_EQ(step(), "&Rückgängig");
}

TEST_F(StudioVariableLists, AreExportedAsTheyAreReadAgain) {
    showVariables();
    execute("UPDATE ThxVariable SET Comment = 'a;b' WHERE Name = 'Mischer.Apfelsaft'");
    const QString list = folder.filePath("out.csv");
    {
        const NextModal<QFileDialog> choice([&](QFileDialog& chooser) { choose(chooser, list); });
        action("actionExportVariables").trigger();
    }
    QFile written(list);
    ASSERT_TRUE(written.open(QIODevice::ReadOnly));
    EXPECT_EQ(written.readAll().toStdString(),
              "\xEF\xBB\xBFName;Type;Comment\r\nMischer.Wasser;REAL;in Liter\r\nMischer.Apfelsaft;REAL;\"a;b\"\r\n"
              "Datei.Limonade;STRING;\r\n");
    import(list, [](QDialog& dialog) {
        ASSERT_TRUE(isRead(dialog));
    EXPECT_EQ(counts(dialog), "0 neu, 0 geändert, 3 unverändert");
    EXPECT_FALSE(button(dialog, QDialogButtonBox::Ok).isEnabled());
    dialog.reject();
});
}

}  // namespace
}  // namespace hx::gui
