#include "import/txt_records.h"

#include "base/text/compare.h"
#include "base/text/numbers.h"

#include <algorithm>

namespace halvenmoor {

SpeedRecords::SpeedRecords(std::string_view speed) : speed_(speed), number_(text::LeadingNumber(speed)) {
}

void SpeedRecords::Store(std::string& out, const TxtRecord& record) {
    out.append(record.x) += ',';
    out.append(record.y) += ',';
    out.append(record.dirType) += ',';
    out.append(record.direction) += '\n';
}

void TypeRecords::Add(const TxtRecord& record, const text::CodePage& page) {
    const std::int32_t count = text::CheckedAdd(count_, 1);
    stored_.clear();
    SpeedRecords::Store(stored_, record);
    RecordsOf(record.speed, page).Append(stored_);  // in one piece: a failure leaves no half of a record
    count_ = count;
}

SpeedRecords& TypeRecords::RecordsOf(std::string_view speed, const text::CodePage& page) {
    key_.clear();
    text::AppendFoldedKey(key_, speed, page);
    const auto found = indexBySpeed_.find(key_);
    if (found != indexBySpeed_.end()) return speeds_[found->second];
    SpeedRecords& records = speeds_.emplace_back(speed);
    indexBySpeed_.emplace(key_, speeds_.size() - 1);
    return records;
}

void TypeRecords::SortSpeeds() {
    std::stable_sort(speeds_.begin(), speeds_.end(),
                     [](const SpeedRecords& a, const SpeedRecords& b) { return a.Number() < b.Number(); });
}

}  // namespace halvenmoor
