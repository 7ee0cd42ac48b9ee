// Style, palette and style sheet of the whole application, made from the tokens.
#include "desktop/theme/theme.h"

#include <QApplication>
#include <QFile>
#include <QLibraryInfo>
#include <QLocale>
#include <QPalette>
#include <QTranslator>

#include "desktop/theme/fonts.h"
#include "desktop/theme/house_style.h"
#include "desktop/theme/tokens.h"

// Resources of a static library are only there once they were asked for; outside any namespace.
static void load_resources() { Q_INIT_RESOURCE(theme); }

namespace desktop {
namespace {

QPalette palette() {
    QPalette p;
    p.setColor(QPalette::Window, token::paper_1);
    p.setColor(QPalette::WindowText, token::ink_1);
    p.setColor(QPalette::Base, token::paper_0);
    p.setColor(QPalette::AlternateBase, token::paper_0);
    p.setColor(QPalette::Text, token::ink_1);
    p.setColor(QPalette::PlaceholderText, token::ink_3);
    p.setColor(QPalette::Button, token::paper_0);
    p.setColor(QPalette::ButtonText, token::ink_1);
    p.setColor(QPalette::BrightText, token::cinnabar_1);
    p.setColor(QPalette::Highlight, token::indigo_1);
    p.setColor(QPalette::HighlightedText, Qt::white);
    p.setColor(QPalette::Link, token::indigo_1);
    p.setColor(QPalette::Light, token::paper_0);
    p.setColor(QPalette::Midlight, token::rule_1);
    p.setColor(QPalette::Mid, token::rule_2);
    p.setColor(QPalette::Dark, token::rule_3);
    p.setColor(QPalette::Shadow, token::rule_3);
    p.setColor(QPalette::ToolTipBase, token::paper_0);
    p.setColor(QPalette::ToolTipText, token::ink_1);
    for (auto role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
        p.setColor(QPalette::Disabled, role, token::ink_4);
    return p;
}

// The sheet names its colours as the drawings do: "@paper-2".
QString style_sheet() {
    const std::pair<const char*, QColor> names[] = {
        {"@paper-0", token::paper_0},       {"@paper-1", token::paper_1},
        {"@paper-2", token::paper_2},       {"@paper-3", token::paper_3},
        {"@rule-1", token::rule_1},         {"@rule-2", token::rule_2},
        {"@rule-3", token::rule_3},         {"@ink-1", token::ink_1},
        {"@ink-2", token::ink_2},           {"@ink-3", token::ink_3},
        {"@ink-4", token::ink_4},           {"@indigo-1", token::indigo_1},
        {"@indigo-2", token::indigo_2},     {"@indigo-3", token::indigo_3},
        {"@indigo-4", token::indigo_4},     {"@indigo-5", token::indigo_5},
        {"@cinnabar-1", token::cinnabar_1}, {"@cinnabar-3", token::cinnabar_3},
    };
    QFile file(":/theme.qss");
    if (!file.open(QIODevice::ReadOnly)) return {};
    QString sheet = QString::fromUtf8(file.readAll());
    for (const auto& [name, color] : names) sheet.replace(name, color.name());
    return sheet;
}

void speak_chinese(QApplication& application) {
    QLocale::setDefault(QLocale(QLocale::Chinese, QLocale::China));
    auto* translator = new QTranslator(&application);
    if (translator->load("qtbase_zh_CN", QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        application.installTranslator(translator);
}

} // namespace

void apply_theme(QApplication& application) {
    load_resources();
    speak_chinese(application);
    application.setStyle(new HouseStyle);
    application.setPalette(palette());
    application.setFont(fonts::body());
    application.setStyleSheet(style_sheet());
}

} // namespace desktop
