// A tree of texts: codes quiet, names in ink.
#include <QPainter>
#include <QStyledItemDelegate>
#include <QTreeWidget>

#include <set>

#include "desktop/renderers/form_view.h"
#include "desktop/renderers/renderers.h"
#include "desktop/theme/fonts.h"
#include "desktop/theme/icons.h"
#include "desktop/theme/text.h"
#include "desktop/theme/tokens.h"

namespace desktop {
namespace {

class NodePainter : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;
    QSize sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const override {
        return {100, token::entry_row};
    }
    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        const bool selected = option.state & QStyle::State_Selected;
        const auto* tree = static_cast<const QWidget*>(option.widget);
        if (selected) painter->fillRect(option.rect, tree->hasFocus() ? token::indigo_3
                                                              : token::selected_quiet);
        const QString text = index.data().toString();
        const qsizetype blank = text.indexOf(' ');
        const QRect box = option.rect.adjusted(4, 0, 0, 0);
        painter->setFont(fonts::body());
        painter->setPen(selected ? token::indigo_1 : token::ink_3);
        painter->drawText(box, Qt::AlignVCenter | Qt::AlignLeft, text.left(blank));
        if (blank < 0) return;
        const int width = painter->fontMetrics().horizontalAdvance(text.left(blank));
        painter->setPen(token::ink_1);
        painter->drawText(box.adjusted(width + 10, 0, 0, 0), Qt::AlignVCenter | Qt::AlignLeft,
                          text.mid(blank + 1));
    }
};

class Tree : public QTreeWidget {
public:
    explicit Tree(QWidget* parent) : QTreeWidget(parent) {
        setHeaderHidden(true);
        setFrameShape(QFrame::NoFrame);
        setIndentation(20);
        setItemDelegate(new NodePainter(this));
        ensurePolished();
        setUniformRowHeights(true);
    }

protected:
    void drawBranches(QPainter* painter, const QRect& rect,
                      const QModelIndex& index) const override {
        if (selectionModel()->isSelected(index))
            painter->fillRect(rect, hasFocus() ? token::indigo_3 : token::selected_quiet);
        if (!model()->hasChildren(index)) return;
        icons::paint(*painter, isExpanded(index) ? "chevron-down" : "chevron-right",
                     QRect(rect.right() - 18, rect.y(), 16, rect.height()), 14, token::ink_3);
    }
};

struct TreeSync {
    Tree* widget;
    host::TTreeView* tree;
    std::unordered_map<const host::TTreeNode*, QTreeWidgetItem*> items;

    void add(const host::TTreeNode& node, QTreeWidgetItem* parent,
             const std::set<QString>& folded) {
        auto* item = parent ? new QTreeWidgetItem(parent) : new QTreeWidgetItem(widget);
        item->setText(0, qt(node.Text));
        item->setData(0, Qt::UserRole, QVariant::fromValue(reinterpret_cast<quintptr>(&node)));
        items[&node] = item;
        for (const auto& child : node.Children) add(*child, item, folded);
        item->setExpanded(!folded.count(item->text(0)));
    }
    // A tree is a few thousand nodes at most: drawn anew, keeping what was folded.
    void refresh() {
        const QSignalBlocker quiet(widget);
        std::set<QString> folded;
        for (auto& [node, item] : items)
            if (item->childCount() > 0 && !item->isExpanded()) folded.insert(item->text(0));
        widget->clear();
        items.clear();
        for (const auto& root : tree->Roots) add(*root, nullptr, folded);
        show_selected();
        widget->setEnabled(tree->Enabled);
        widget->setVisible(tree->Visible);
    }
    void show_selected() {
        const auto found = items.find(tree->Selected());
        widget->setCurrentItem(found == items.end() ? nullptr : found->second);
    }
};

} // namespace

QWidget* draw_tree(host::TTreeView& tree, FormView& view) {
    auto* widget = new Tree(&view);
    auto sync = std::make_shared<TreeSync>(TreeSync{widget, &tree, {}});
    view.claim(widget, tree);
    view.set_own_keys(tree, [](const host::Key& key) {
        using host::KeyCode;
        return own_when(!key.ctrl && !key.alt &&
               (key.code == KeyCode::Up || key.code == KeyCode::Down || key.code == KeyCode::Left ||
                key.code == KeyCode::Right || key.code == KeyCode::Home ||
                key.code == KeyCode::End || key.code == KeyCode::PageUp ||
                key.code == KeyCode::PageDown));
    });
    view.listen(tree, [sync] { sync->refresh(); });
    QObject::connect(widget, &QTreeWidget::currentItemChanged, widget,
        [sync, &tree, &view](QTreeWidgetItem* item) {
            if (!item || !view.form()) return;
            auto* node = reinterpret_cast<host::TTreeNode*>(
                item->data(0, Qt::UserRole).value<quintptr>());
            if (node == tree.Selected()) return;
            view.run([&] { tree.Select(node); });
        });
    QObject::connect(widget, &QTreeWidget::itemDoubleClicked, widget, [&tree, &view] {
        if (view.form() && tree.OnDblClick) view.run([&tree] { tree.OnDblClick(); });
    });
    return widget;
}

} // namespace desktop
