#pragma once
// The rows of a TableView as its list view sees them: every section's header, rows and footer
// in one list.
#include "platform/kit/TableView.h"

#include <QAbstractListModel>

#include <vector>

// Flattens sections into list rows: [header] rows... [footer] per section.
class TableModel : public QAbstractListModel {
public:
    // The height of a section's header and footer, as a row and as a fixed label.
    static constexpr int HeaderHeight = 30;

    explicit TableModel(TableView* table)
        : QAbstractListModel(table)
        , table_(table) {}
    struct Section {
        int start = 0;
        bool header = false;
        int rows = 0;
        bool footer = false;
        QString headerTitle, footerTitle;
    };
    void rebuild();
    int rowCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : total_;
    }
    // Rows are drawn by their cells; only a reader asks the model, for the row's text.
    QVariant data(const QModelIndex& index, int role) const override;
    // Headers and footers are passed over by the arrow keys.
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    // kind: 0 header, 1 row, 2 footer
    int locate(int listRow, int& section, int& row) const {
        for (int i = int(sections_.size()) - 1; i >= 0; --i) {
            const Section& sec = sections_[std::size_t(i)];
            if (listRow < sec.start)
                continue;
            section = i;
            int r = listRow - sec.start;
            if (sec.header) {
                if (r == 0)
                    return 0;
                --r;
            }
            row = r;
            return r < sec.rows ? 1 : 2;
        }
        section = row = 0;
        return -1;
    }
    int listRow(IndexPath p) const {
        if (p.section < 0 || p.section >= int(sections_.size()))
            return -1;
        const Section& sec = sections_[std::size_t(p.section)];
        if (p.row < 0 || p.row >= sec.rows)
            return -1;
        return sec.start + int(sec.header) + p.row;
    }
    std::vector<Section> sections_;
    int total_ = 0;
    TableView* table_;
};
