// A day, typed or chosen from a calendar.
#include <QCalendarWidget>
#include <QMenu>
#include <QTextCharFormat>
#include <QToolButton>
#include <QWidgetAction>

#include "desktop/renderers/edit_sync.h"
#include "desktop/renderers/field_edit.h"
#include "desktop/renderers/form_view.h"
#include "desktop/renderers/renderers.h"
#include "desktop/theme/text.h"
#include "desktop/theme/tokens.h"

namespace desktop {
namespace {

// Dressed as the rest: arrows as type, the days of rest in the one red there is.
QCalendarWidget* new_calendar(QWidget* parent) {
    auto* calendar = new QCalendarWidget(parent);
    calendar->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    QTextCharFormat rest;
    rest.setForeground(token::cinnabar_1);
    calendar->setWeekdayTextFormat(Qt::Saturday, rest);
    calendar->setWeekdayTextFormat(Qt::Sunday, rest);
    const std::pair<const char*, const char*> turns[] = {{"qt_calendar_prevmonth", "‹"},
                                                         {"qt_calendar_nextmonth", "›"}};
    for (const auto& [name, arrow] : turns)
        if (auto* button = calendar->findChild<QToolButton*>(name)) {
            button->setIcon(QIcon());
            button->setText(qt(arrow));
        }
    return calendar;
}

// Shows the month of the edit's day below it; a picked day replaces the text.
void choose_day(FieldEdit* widget, host::TDateEdit& edit, FormView& view) {
    if (!view.move_focus(edit)) return;
    QMenu menu(widget);
    QCalendarWidget* calendar = new_calendar(&menu);
    const host::Date day = edit.value();
    calendar->setSelectedDate(QDate(day.year(), day.month(), day.day()));
    auto* action = new QWidgetAction(&menu);
    action->setDefaultWidget(calendar);
    menu.addAction(action);
    QDate chosen;
    auto take = [&](const QDate& date) {
        chosen = date;
        menu.close();
    };
    QObject::connect(calendar, &QCalendarWidget::clicked, &menu, take);
    QObject::connect(calendar, &QCalendarWidget::activated, &menu, take);
    menu.exec(widget->mapToGlobal(QPoint(0, widget->height())));
    if (chosen.isValid())
        view.run([&] { edit.enter_text(utf8(chosen.toString("yyyy-MM-dd"))); });
}

} // namespace

QWidget* draw_date_edit(host::TDateEdit& edit, FormView& view) {
    auto* widget = new FieldEdit(&view);
    no_input_method(widget);
    widget->set_edge(EdgeButton::Plain, "calendar");
    // The calendar opens from the event loop: the press that asked for it has to end first.
    const auto open = [widget, &edit, &view] {
        QMetaObject::invokeMethod(widget, [widget, &edit, &view] {
            if (view.form() && edit.usable()) choose_day(widget, edit, view);
        }, Qt::QueuedConnection);
    };
    widget->on_edge = [open](bool) { open(); };
    sync_edit(widget, edit, view, Handover::HalfMade);
    view.set_own_keys(edit, [open](const host::Key& key) {
        const bool asked = is_opening_key(key) || key == host::Key{.code = host::KeyCode::F4};
        if (!asked) return own_when(line_takes(key));
        open();
        return OwnKey::Used;
    });
    widget->setMinimumWidth(width_of_characters(10) + 20);
    return widget;
}

} // namespace desktop
