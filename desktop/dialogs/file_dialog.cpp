// The system's dialog, with kinds of files whose ending follows the choice.
#include "desktop/dialogs/file_dialog.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>

#include "desktop/theme/text.h"
#include "host/ports/host.h"

namespace desktop {
namespace {

const std::string section = "Desktop", last_folder = "folder";

QString filter_of(const host::FileKind& kind) {
    return qt(kind.caption + " (*." + kind.ending + ")");
}

QString folder_to_begin_with() {
    const host::SettingsStore* settings = host::the_host().settings;
    const QString kept = settings ? qt(settings->read(section, last_folder, "")) : QString();
    return !kept.isEmpty() && QDir(kept).exists() ? kept : QDir::homePath();
}

// The name follows the kind: "总帐.xlsx" becomes "总帐.csv".
void take_kind(QFileDialog& dialog, const host::FileKind& kind) {
    dialog.setDefaultSuffix(qt(kind.ending));
    const QStringList names = dialog.selectedFiles();
    if (names.isEmpty()) return;
    const QFileInfo named(names.first());
    if (!named.suffix().isEmpty() && !named.isDir())
        dialog.selectFile(named.completeBaseName() + "." + qt(kind.ending));
}

} // namespace

std::optional<std::string> choose_file(const std::string& title, const std::string& suggested,
                                       const std::vector<host::FileKind>& kinds, QWidget* over) {
    QFileDialog dialog(over, qt(title), folder_to_begin_with());
    dialog.setObjectName("file");
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    QStringList filters;
    for (const host::FileKind& kind : kinds) filters << filter_of(kind);
    dialog.setNameFilters(filters);
    if (!kinds.empty()) dialog.setDefaultSuffix(qt(kinds.front().ending));
    dialog.selectFile(qt(suggested));
    QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, [&](const QString& filter) {
        for (const host::FileKind& kind : kinds)
            if (filter_of(kind) == filter) take_kind(dialog, kind);
    });
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
    const QString file = dialog.selectedFiles().first();
    if (host::SettingsStore* settings = host::the_host().settings)
        settings->write(section, last_folder, utf8(QFileInfo(file).absolutePath()));
    return utf8(file);
}

} // namespace desktop
