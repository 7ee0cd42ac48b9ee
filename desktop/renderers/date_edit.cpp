// A day, typed or chosen from a calendar.
#include <QCalendarWidget>
#include <QMenu>
#include <QWidgetAction>

#include "desktop/renderers/edit_sync.h"
#include "desktop/renderers/field_edit.h"
#include "desktop/renderers/form_view.h"
#include "desktop/renderers/renderers.h"
#include "desktop/theme/text.h"

namespace desktop {
namespace {

// Shows the month of the edit's day below it; a picked day replaces the text.
void choose_day(FieldEdit* widget, host::TDateEdit& edit, FormView& view) {
    if (!view.move_focus(edit)) return;
    QMenu menu(widget);
    auto* calendar = new QCalendarWidget(&menu);
    calendar->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
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
    widget->on_edge = [widget, &edit, &view](bool) {
        QMetaObject::invokeMethod(widget, [widget, &edit, &view] {
            if (view.form()) choose_day(widget, edit, view);
        }, Qt::QueuedConnection);
    };
    sync_edit(widget, edit, view, Handover::HalfMade);
    widget->setMinimumWidth(width_of_characters(10) + 20);
    return widget;
}

} // namespace desktop
