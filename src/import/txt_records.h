#pragma once

#include "base/text/codepage.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace halvenmoor {

/// A record of a TXT source without its type. No field holds a comma, a line feed or outer blanks.
struct TxtRecord {
    std::string_view x;
    std::string_view y;
    std::string_view speed;
    std::string_view dirType;
    std::string_view direction;
};

/// The records of one speed, in the order of their reading.
class SpeedRecords {
public:
    explicit SpeedRecords(std::string_view speed);

    /// The number that the speed's text begins with.
    double Number() const { return number_; }
    void Append(std::string_view storedRecord) { stored_ += storedRecord; }

    /// Calls take with each record; the speed is the text that was read first.
    template <class Taker>
    void ForEach(const Taker& take) const;

    /// Puts a record into the form in which it is stored: its other four fields, each with its end mark.
    static void Store(std::string& out, const TxtRecord& record);

private:
    static std::string_view TakeField(std::string_view& rest, char endMark);

    std::string speed_;
    double number_;
    std::string stored_;  // one string for all records, since there may be millions
};

/// The records of one camera type, by their speeds. Speeds that differ only in letter case are one.
class TypeRecords {
public:
    /// The code page of the record's bytes.
    void Add(const TxtRecord& record, const text::CodePage& page);
    std::int32_t Count() const { return count_; }
    /// Puts the speeds into the order of their numbers; those of one number stay in the order of reading.
    /// Nothing may be added afterwards.
    void SortSpeeds();
    const std::vector<SpeedRecords>& Speeds() const { return speeds_; }

private:
    SpeedRecords& RecordsOf(std::string_view speed, const text::CodePage& page);

    std::vector<SpeedRecords> speeds_;
    std::unordered_map<std::string, std::size_t> indexBySpeed_;  // by the folded text
    std::string key_;
    std::string stored_;
    std::int32_t count_ = 0;
};

template <class Taker>
void SpeedRecords::ForEach(const Taker& take) const {
    for (std::string_view rest = stored_; !rest.empty();) {
        const std::string_view x = TakeField(rest, ',');
        const std::string_view y = TakeField(rest, ',');
        const std::string_view dirType = TakeField(rest, ',');
        take(TxtRecord{x, y, speed_, dirType, TakeField(rest, '\n')});
    }
}

inline std::string_view SpeedRecords::TakeField(std::string_view& rest, char endMark) {
    const std::string_view field = rest.substr(0, rest.find(endMark));
    rest.remove_prefix(field.size() + 1);
    return field;
}

}  // namespace halvenmoor
