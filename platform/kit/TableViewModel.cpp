#include "platform/kit/TableViewModel.h"

void TableModel::rebuild() {
    beginResetModel();
    sections_.clear();
    total_ = 0;
    if (TableViewDataSource* s = table_->source_) {
        const int n = s->numberOfSections(table_);
        for (int i = 0; i < n; ++i) {
            Section sec;
            sec.start = total_;
            sec.headerTitle = s->titleForHeader(table_, i);
            sec.footerTitle = s->titleForFooter(table_, i);
            // A lone section's header stands above the list, as a plain table's floating
            // header does; it also keeps the rows of uniform height.
            sec.header = !sec.headerTitle.isEmpty() && n > 1;
            // Its footer stands below the list the same way.
            sec.footer = !sec.footerTitle.isEmpty() && n > 1;
            sec.rows = s->numberOfRows(table_, i);
            total_ += sec.rows + int(sec.header) + int(sec.footer);
            sections_.push_back(sec);
        }
    }
    endResetModel();
}

QVariant TableModel::data(const QModelIndex& index, int role) const {
    int section = 0, row = 0;
    if (role != Qt::AccessibleTextRole || !table_->source_ || !index.isValid())
        return {};
    const int kind = locate(index.row(), section, row);
    if (kind == 1)
        return table_->source_->accessibleTextForRow(table_, {section, row});
    if (kind < 0)
        return {};
    const Section& sec = sections_[std::size_t(section)];
    return kind == 0 ? sec.headerTitle : sec.footerTitle;
}

Qt::ItemFlags TableModel::flags(const QModelIndex& index) const {
    int section = 0, row = 0;
    return locate(index.row(), section, row) == 1 ? Qt::ItemIsEnabled | Qt::ItemIsSelectable
                                                  : Qt::NoItemFlags;
}
