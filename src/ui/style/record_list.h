#pragma once

#include <QtCore/QAbstractListModel>

#include <vector>

namespace tallyvane::ui {

/// A list model of gadgets. Each property of the gadget is a role of the same name.
class RecordListBase : public QAbstractListModel {
    Q_OBJECT

public:
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

protected:
    explicit RecordListBase(const QMetaObject& record) : m_record(record) {}

    /// Notifies views that `before` rows starting at `row` are replaced by `after` rows. Calls
    /// `exchange`, which replaces them, at the right moment.
    template <typename Exchange>
    void replaceRows(int row, int before, int after, const Exchange& exchange) {
        const int kept = std::min(before, after);
        if (before > after) {
            beginRemoveRows({}, row + kept, row + before - 1);
        } else if (after > before) {
            beginInsertRows({}, row + kept, row + after - 1);
        }
        exchange();
        if (before > after) {
            endRemoveRows();
        } else if (after > before) {
            endInsertRows();
        }
        if (kept > 0) {
            Q_EMIT dataChanged(index(row), index(row + kept - 1));
        }
    }

private:
    [[nodiscard]] virtual const void* record(int row) const = 0;

    const QMetaObject& m_record;
};

/// `Record` is a gadget that has ==.
template <typename Record>
class RecordList final : public RecordListBase {
public:
    RecordList() : RecordListBase(Record::staticMetaObject) {}

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : static_cast<int>(m_records.size());
    }
    [[nodiscard]] const std::vector<Record>& records() const { return m_records; }

    /// Replaces the records. Views keep the delegates of equal records at both ends of the list.
    void setRecords(std::vector<Record> records) {
        const auto [oldFirst, newFirst] = std::ranges::mismatch(m_records, records);
        const auto same = oldFirst - m_records.begin();
        auto oldEnd = m_records.end();
        auto newEnd = records.end();
        while (oldEnd != oldFirst && newEnd != newFirst && oldEnd[-1] == newEnd[-1]) {
            --oldEnd;
            --newEnd;
        }
        if (oldFirst != oldEnd || newFirst != newEnd) {
            replaceRows(static_cast<int>(same), static_cast<int>(oldEnd - oldFirst),
                        static_cast<int>(newEnd - newFirst),
                        [&] { m_records = std::move(records); });
        }
    }

private:
    [[nodiscard]] const void* record(int row) const override {
        return &m_records[static_cast<std::size_t>(row)];
    }

    std::vector<Record> m_records;
};

} // namespace tallyvane::ui
