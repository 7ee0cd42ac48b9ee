// Reads and writes the remembered columns of a grid.
#include "desktop/grid/column_memory.h"

#include <QHeaderView>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "desktop/theme/text.h"
#include "host/controls/grid.h"
#include "host/forms/form.h"
#include "host/ports/host.h"

namespace desktop::column_memory {
namespace {

const std::string section = "Columns";

std::string name_of(const host::TDBGridEh& grid) {
    return (grid.form() ? grid.form()->FormName() + "." : std::string()) + grid.Name();
}

} // namespace

void remember(const host::TDBGridEh& grid, const QHeaderView& header) {
    host::SettingsStore* settings = host::the_host().settings;
    if (!settings || header.count() != static_cast<int>(grid.Columns.size())) return;
    QJsonArray columns;
    for (int visual = 0; visual < header.count(); ++visual) {
        const int logical = header.logicalIndex(visual);
        const auto& column = grid.Columns[static_cast<std::size_t>(logical)];
        columns.append(QJsonObject{{"field", qt(column.FieldName)},
                                   {"width", header.sectionSize(logical)},
                                   {"visible", !header.isSectionHidden(logical)}});
    }
    settings->write(section, name_of(grid),
                    utf8(QString::fromUtf8(QJsonDocument(columns).toJson(QJsonDocument::Compact))));
}

void restore(const host::TDBGridEh& grid, QHeaderView& header) {
    const host::SettingsStore* settings = host::the_host().settings;
    if (!settings) return;
    const std::string kept = settings->read(section, name_of(grid), "");
    const QJsonArray columns =
        QJsonDocument::fromJson(QByteArray::fromStdString(kept)).array();
    int to = 0;
    for (const auto& entry : columns) {
        const QJsonObject kept_column = entry.toObject();
        const int logical = grid.column_index(utf8(kept_column["field"].toString()));
        if (logical < 0 || logical >= header.count()) continue;
        header.moveSection(header.visualIndex(logical), to++);
        if (!grid.Columns[static_cast<std::size_t>(logical)].Visible) continue;
        const int width = kept_column["width"].toInt();
        if (width > 0) header.resizeSection(logical, width);
        header.setSectionHidden(logical, !kept_column["visible"].toBool(true));
    }
}

} // namespace desktop::column_memory
