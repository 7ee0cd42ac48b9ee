// Fills, filters and paints the tree of functions.
#include "desktop/navigation/navigation_panel.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "desktop/theme/fonts.h"
#include "desktop/theme/icons.h"
#include "desktop/theme/text.h"
#include "desktop/theme/tokens.h"
#include "host/contract/Zpy.h"
#include "host/contract/function_table.h"

namespace desktop {
namespace {

// Key is "661" or "users", empty for an area; Code is what is shown of it.
enum Role { Key = Qt::UserRole, Code, Pinyin, Icon, Available, Active };

bool is_area(const QTreeWidgetItem& item) { return item.data(0, Key).toString().isEmpty(); }

class EntryPainter : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;
    QSize sizeHint(const QStyleOptionViewItem&, const QModelIndex& index) const override {
        return {180, index.data(Key).toString().isEmpty() ? 28 : 24};
    }
    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        const auto* tree = static_cast<const QTreeWidget*>(option.widget);
        const QRect row(0, option.rect.y(), tree->viewport()->width(), option.rect.height());
        if (index.data(Key).toString().isEmpty())
            paint_area(*painter, row, index, tree->isExpanded(index));
        else
            paint_function(*painter, row, index, tree->hasFocus() && tree->currentIndex() == index);
    }

private:
    static void paint_area(QPainter& painter, const QRect& row, const QModelIndex& index,
                           bool open) {
        icons::paint(painter, open ? "chevron-down" : "chevron-right",
                     QRect(8, row.y(), 12, row.height()), 12, token::ink_3);
        icons::paint(painter, utf8(index.data(Icon).toString()),
                     QRect(24, row.y(), 14, row.height()), 14, token::ink_3);
        painter.setFont(fonts::small());
        painter.setPen(token::ink_2);
        painter.drawText(row.adjusted(42, 0, 0, 0), Qt::AlignVCenter, index.data().toString());
    }
    static void paint_function(QPainter& painter, const QRect& row, const QModelIndex& index,
                               bool current) {
        const bool active = index.data(Active).toBool();
        if (active) {
            painter.fillRect(row, token::indigo_3);
            painter.fillRect(0, row.y(), 3, row.height(), token::indigo_1);
        }
        if (current) {
            painter.setPen(QPen(token::indigo_2, 2));
            painter.drawRect(row.adjusted(1, 1, -1, -1));
        }
        const bool there = index.data(Available).toBool();
        painter.setFont(fonts::body());
        painter.setPen(!there ? token::ink_4 : active ? token::indigo_1 : token::ink_1);
        painter.drawText(row.adjusted(32, 0, -34, 0), Qt::AlignVCenter, index.data().toString());
        painter.setFont(fonts::tiny());
        painter.setPen(!there ? token::ink_4 : active ? token::indigo_1 : token::ink_3);
        painter.drawText(row.adjusted(0, 0, -12, 0), Qt::AlignVCenter | Qt::AlignRight,
                         index.data(Code).toString());
    }
};

class FindBox : public QLineEdit {
public:
    explicit FindBox(QWidget* parent) : QLineEdit(parent) {
        setProperty("part", "find");
        setFixedHeight(token::control);
        setPlaceholderText(QStringLiteral("功能号 / 名称 / 拼音"));
        setAccessibleName(QStringLiteral("查找功能"));
    }

protected:
    void paintEvent(QPaintEvent* event) override {
        QLineEdit::paintEvent(event);
        QPainter painter(this);
        icons::paint(painter, "search", QRect(8, 0, 14, height()), 14, token::ink_3);
        if (!text().isEmpty()) return;
        painter.setFont(fonts::tiny());
        painter.setPen(token::ink_3);
        painter.drawText(rect().adjusted(0, 0, -8, 0), Qt::AlignRight | Qt::AlignVCenter, "Ctrl+G");
    }
};

} // namespace

NavigationPanel::NavigationPanel(const std::function<bool(const std::string&)>& available,
                                 QWidget* parent)
    : QWidget(parent), box_(new FindBox(this)), tree_(new QTreeWidget(this)) {
    setFixedWidth(token::navigation);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 8, 1, 0);
    column->setSpacing(8);
    auto* box_row = new QHBoxLayout;
    box_row->setContentsMargins(8, 0, 7, 0);
    box_row->addWidget(box_);
    column->addLayout(box_row);
    column->addWidget(tree_, 1);
    tree_->setObjectName("navigation");
    tree_->setHeaderHidden(true);
    tree_->setFrameShape(QFrame::NoFrame);
    tree_->setIndentation(0);
    tree_->setRootIsDecorated(false);
    tree_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    tree_->setItemDelegate(new EntryPainter(tree_));
    QPalette paper = tree_->palette();
    paper.setColor(QPalette::Base, token::paper_2);
    tree_->setPalette(paper);
    fill(available);
    connect(box_, &QLineEdit::textEdited, this, [this](const QString& text) { filter(text); });
    connect(tree_, &QTreeWidget::itemClicked, this, [this](QTreeWidgetItem* item) {
        if (is_area(*item)) item->setExpanded(!item->isExpanded());
        else open(item);
    });
    box_->installEventFilter(this);
    tree_->installEventFilter(this);
}

void NavigationPanel::fill(const std::function<bool(const std::string&)>& available) {
    for (const host::WorkArea& area : host::work_areas()) {
        auto* group = new QTreeWidgetItem(tree_, {qt(area.name)});
        group->setData(0, Icon, qt(area.icon));
        for (const host::Function& function : area.functions) {
            auto* item = new QTreeWidgetItem(group, {qt(function.name)});
            item->setData(0, Key, qt(function.key()));
            if (function.code != 0) item->setData(0, Code, qt(function.key()));
            item->setData(0, Pinyin, qt(host::GetPY(std::string(function.name))));
            item->setData(0, Available, !available || available(function.key()));
        }
        group->setExpanded(true);
    }
}

void NavigationPanel::find_function() {
    box_->setFocus();
    box_->selectAll();
}

void NavigationPanel::show_active(const std::string& key) {
    for (int i = 0; i < tree_->topLevelItemCount(); ++i)
        for (int j = 0; j < tree_->topLevelItem(i)->childCount(); ++j) {
            QTreeWidgetItem* item = tree_->topLevelItem(i)->child(j);
            item->setData(0, Active, !key.empty() && item->data(0, Key).toString() == qt(key));
        }
}

void NavigationPanel::filter(const QString& typed) {
    const QString wanted = typed.trimmed();
    QTreeWidgetItem* first = nullptr;
    for (int i = 0; i < tree_->topLevelItemCount(); ++i) {
        QTreeWidgetItem* group = tree_->topLevelItem(i);
        bool any = false;
        for (int j = 0; j < group->childCount(); ++j) {
            QTreeWidgetItem* item = group->child(j);
            const bool match =
                wanted.isEmpty() || item->text(0).contains(wanted) ||
                item->data(0, Key).toString().startsWith(wanted) ||
                item->data(0, Pinyin).toString().contains(wanted, Qt::CaseInsensitive);
            item->setHidden(!match);
            any = any || match;
            if (match && !first && !wanted.isEmpty()) first = item;
        }
        group->setHidden(!any);
        if (any && !wanted.isEmpty()) group->setExpanded(true);
    }
    tree_->setCurrentItem(first);
}

void NavigationPanel::open(QTreeWidgetItem* item) {
    const host::Function* function =
        item ? host::function_of(utf8(item->data(0, Key).toString())) : nullptr;
    if (!function) return;
    box_->clear();
    filter({});
    if (on_open) on_open(*function);
}

void NavigationPanel::step(int by) {
    QTreeWidgetItem* item = tree_->currentItem();
    if (!item) item = tree_->topLevelItem(0);
    do item = by > 0 ? tree_->itemBelow(item) : tree_->itemAbove(item);
    while (item && is_area(*item));
    if (item) tree_->setCurrentItem(item);
}

bool NavigationPanel::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress) return QWidget::eventFilter(watched, event);
    switch (static_cast<QKeyEvent*>(event)->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter: return open(tree_->currentItem()), true;
    case Qt::Key_Escape:
        box_->clear();
        filter({});
        if (on_leave) on_leave();
        return true;
    case Qt::Key_Down:
        if (watched == box_) tree_->setFocus();
        return step(1), true;
    case Qt::Key_Up: return step(-1), true;
    default: return QWidget::eventFilter(watched, event);
    }
}

void NavigationPanel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), token::paper_2);
    painter.fillRect(width() - 1, 0, 1, height(), token::rule_2);
}

} // namespace desktop
