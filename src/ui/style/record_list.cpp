#include "ui/style/record_list.h"

#include <QtCore/QMetaProperty>

namespace tallyvane::ui {

QVariant RecordListBase::data(const QModelIndex& index, int role) const {
    return index.isValid()
               ? m_record.property(role - Qt::UserRole).readOnGadget(record(index.row()))
               : QVariant();
}

QHash<int, QByteArray> RecordListBase::roleNames() const {
    QHash<int, QByteArray> names;
    for (int i = 0; i < m_record.propertyCount(); ++i) {
        names[Qt::UserRole + i] = m_record.property(i).name();
    }
    return names;
}

} // namespace tallyvane::ui

#include "moc_record_list.cpp"
