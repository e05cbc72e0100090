#include <gtest/gtest.h>

#include <QAccessible>
#include <QDirIterator>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QRegularExpression>
#include <QScrollBar>
#include <QXmlStreamReader>

#include "app/CommandLine.h"
#include "platform/core/Texts.h"
#include "support/Walk.h"

namespace {

const char *const languages[] = {"de", "en", "es", "fr", "ja", "zh_CN"};

QByteArray contents(const QString &path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(path);
    return file.readAll();
}

// The texts of a language by their keys.
QMap<QString, QString> textsOf(const char *language) {
    QXmlStreamReader file(contents(
        text(NST_SOURCE "/resources/texts/network-setting-tool_%1.ts").arg(text(language))));
    QMap<QString, QString> texts;
    QString key;
    while (!file.atEnd()) {
        if (file.readNext() != QXmlStreamReader::StartElement) continue;
        if (file.name() == text("message")) key = file.attributes().value(text("id")).toString();
        if (file.name() == text("translation")) texts[key] = file.readElementText();
    }
    EXPECT_FALSE(file.hasError()) << language << qPrintable(file.errorString());
    return texts;
}

// Every key that the code and the resources name.
QSet<QString> usedKeys() {
    const QRegularExpression key(text("DWT_(Localize|ToolChip)_\\w+"));
    QSet<QString> keys;
    for (const char *folder : {NST_SOURCE "/src", NST_SOURCE "/resources"}) {
        QDirIterator files(text(folder),
                           {text("*.cpp"), text("*.h"), text("*.ui"), text("*.plist")}, QDir::Files,
                           QDirIterator::Subdirectories);
        while (files.hasNext()) {
            auto matches = key.globalMatch(QString::fromUtf8(contents(files.next())));
            while (matches.hasNext()) keys << matches.next().captured();
        }
    }
    return keys;
}

TEST(Languages, EveryKeyHasATextInEveryLanguageAndEveryTextAKey) {
    const QSet<QString> used = usedKeys();
    EXPECT_GT(used.size(), 200);
    const auto english = textsOf("en");
    for (const char *language : languages) {
        const auto texts = textsOf(language);
        const QStringList keys = texts.keys();
        const QSet<QString> there(keys.begin(), keys.end());
        for (const QString &missing : used - there)
            ADD_FAILURE() << qPrintable(missing) << " has no text in " << language;
        for (const QString &unused : there - used)
            ADD_FAILURE() << qPrintable(unused) << " is no longer used, " << language;
        for (auto entry = texts.begin(); entry != texts.end(); ++entry) {
            const QString &original = english[entry.key()];
            EXPECT_FALSE(entry.value().trimmed().isEmpty()) << language << qPrintable(entry.key());
            for (const char *mark : {"%1", "&", "\n"})
                EXPECT_EQ(entry.value().count(text(mark)), original.count(text(mark)))
                    << language << " " << qPrintable(entry.key());
        }
    }
}

// What a person cannot read whole, or a screen reader cannot name.
class Looks : public testing::TestWithParam<const char *> {
  protected:
    Looks() {
        QLocale::setDefault(QLocale(text(GetParam())));
        EXPECT_TRUE(installTexts());
        qputenv("ZMLIB_PRINTERS", "demo");
    }
    ~Looks() override {
        QLocale::setDefault(QLocale::c());
        EXPECT_TRUE(installTexts());
    }

    // Calls `look` with every window, once for every view of it.
    static void forEveryView(Walk &walk, const std::function<void(QWidget *)> &look) {
        walk.launch();
        showEach(walk.selector->window(), "view_PrinterSelector", look);
        walk.selector->applicationDidFinishLaunching();
        ASSERT_TRUE(walk.open(text("Packing-Desk")));
        auto *outline = controlOf<OutlineView>(walk.main(), "outlineView_Main");
        outline->setFocus();
        QTest::keyClick(outline, Qt::Key_Up);
        for (int i = 0; i < 7; ++i) {
            QApplication::processEvents();
            look(walk.main());
            QTest::keyClick(outline, Qt::Key_Down);
        }
        for (const char *container : {"view_SendData", "view_WPSGuide"}) {
            QWidget *const dialog = controlOf(walk.main(), container)->window();
            dialog->show();
            showEach(dialog, container, look);
            dialog->hide();
        }
        QWidget *const networks = controlOf(walk.main(), "tableView_SelectSSIDWindow")->window();
        networks->show();
        QApplication::processEvents();
        look(networks);
        networks->hide();
    }

  private:
    static void showEach(QWidget *window, const char *container,
                         const std::function<void(QWidget *)> &look) {
        const auto views = controlOf(window, container)
                               ->findChildren<QWidget *>(QRegularExpression(text("^view_")),
                                                         Qt::FindDirectChildrenOnly);
        EXPECT_GE(views.size(), 2);
        for (QWidget *shown : views) {
            for (QWidget *view : views) view->setVisible(view == shown);
            QApplication::processEvents();
            look(window);
        }
    }
};

// The text of a widget when it needs more room than it has; otherwise an empty text.
QString cutText(const QWidget *widget) {
    if (const auto *label = qobject_cast<const QLabel *>(widget)) {
        const bool cut = label->wordWrap() ? label->heightForWidth(label->width()) > label->height()
                                           : label->sizeHint().width() > label->width();
        return cut ? label->text() : QString();
    }
    if (const auto *button = qobject_cast<const QAbstractButton *>(widget))
        return button->sizeHint().width() > button->width() ? button->text() : QString();
    if (const auto *box = qobject_cast<const QGroupBox *>(widget))
        return box->minimumSizeHint().width() > box->width() ? box->title() : QString();
    if (const auto *popup = qobject_cast<const QComboBox *>(widget))
        return popup->sizeHint().width() > popup->width() ? popup->currentText() : QString();
    if (const auto *line = qobject_cast<const QLineEdit *>(widget)) {
        const int needed = line->fontMetrics().horizontalAdvance(line->displayText());
        return needed > line->width() ? line->text() : QString();
    }
    if (const auto *area = qobject_cast<const QAbstractScrollArea *>(widget))
        return area->horizontalScrollBar()->maximum() > 0 ? text("scrolls sideways") : QString();
    if (const auto *menu = qobject_cast<const QMenuBar *>(widget))
        return menu->sizeHint().width() > menu->width() ? text("menu") : QString();
    if (const auto *header = qobject_cast<const QHeaderView *>(widget))
        for (int i = 0; i < header->count() && header->orientation() == Qt::Horizontal; ++i)
            if (header->sectionSizeHint(i) > header->sectionSize(i))
                return header->model()->headerData(i, Qt::Horizontal).toString();
    return {};
}

TEST_P(Looks, NoTextIsCut) {
    Walk walk(catalogueFromEnvironment());
    int checked = 0;
    forEveryView(walk, [&](QWidget *window) {
        for (const QWidget *widget : window->findChildren<QWidget *>()) {
            if (!widget->isVisible() || widget->window() != window) continue;
            ++checked;
            EXPECT_STREQ(qPrintable(cutText(widget)), "") << qPrintable(widget->objectName());
        }
    });
    EXPECT_GT(checked, 250);
}

// Looks at an accessible object and everything inside it.
void expectNames(QAccessibleInterface *object, int &checked) {
    static const QSet<QAccessible::Role> interactive{
        QAccessible::Button,   QAccessible::CheckBox, QAccessible::RadioButton,
        QAccessible::ComboBox, QAccessible::Table,    QAccessible::EditableText,
        QAccessible::Tree,     QAccessible::MenuItem};
    const bool shown = !object->state().invisible;
    if (shown && interactive.contains(object->role())) {
        ++checked;
        const QObject *control = object->object();
        EXPECT_FALSE(object->text(QAccessible::Name).isEmpty())
            << (control ? qPrintable(control->objectName()) : "") << " role " << object->role();
    }
    if (object->role() == QAccessible::Table || object->role() == QAccessible::Tree) return;
    for (int i = 0; i < object->childCount(); ++i)
        if (QAccessibleInterface *inside = object->child(i)) expectNames(inside, checked);
}

TEST_P(Looks, EveryControlHasANameForAScreenReader) {
    Walk walk(catalogueFromEnvironment());
    int checked = 0;
    forEveryView(walk, [&](QWidget *window) {
        expectNames(QAccessible::queryAccessibleInterface(window), checked);
    });
    EXPECT_GT(checked, 100);
}

TEST_P(Looks, MnemonicsOfAMenuDiffer) {
    Walk walk(catalogueFromEnvironment());
    const auto letters = [](const QList<QAction *> &entries) {
        QStringList found;
        for (const QAction *entry : entries)
            if (!entry->isSeparator()) found << entry->text().section(u'&', 1).left(1).toLower();
        return found;
    };
    const auto *bar = walk.selector->window()->findChild<QMenuBar *>();
    QList<QStringList> menus{letters(bar->actions())};
    for (const QAction *top : bar->actions()) menus << letters(top->menu()->actions());
    for (QStringList &menu : menus) {
        EXPECT_FALSE(menu.contains(QString()));
        EXPECT_EQ(menu.removeDuplicates(), 0) << qPrintable(menu.join(u' '));
    }
}

INSTANTIATE_TEST_SUITE_P(EveryLanguage, Looks, testing::ValuesIn(languages),
                         [](const auto &language) { return std::string(language.param); });

TEST(CommandLine, AnswersHelpAndVersionAndOtherwiseStarts) {
    const auto answer = [](const char *argument) {
        const char *arguments[] = {"network-setting-tool", argument};
        return commandLineAnswer(2, const_cast<char **>(arguments)).value_or(QString());
    };
    EXPECT_EQ(answer("--version"), text("network-setting-tool " NST_VERSION));
    for (const char *starts : {"-Installer", "--helpful", "help", ""})
        EXPECT_EQ(answer(starts), QString()) << starts;
}

}  // namespace
