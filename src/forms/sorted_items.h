#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace halvenmoor::forms {

/// Gives the key by which lists order their items: texts with equal keys are ordered by their bytes.
using SortKey = std::function<std::string(std::string_view)>;

/// Texts in ascending order, each with a selection flag.
class SortedItems {
public:
    struct Item {
        std::string text;
        std::string key;
        bool selected = false;
    };

    /// Positions are 16-bit numbers.
    static constexpr int kMaxCount = 32767;

    explicit SortedItems(SortKey sortKey) : sortKey_(std::move(sortKey)) {}

    int Count() const { return static_cast<int>(items_.size()); }
    const Item& At(int index) const { return *items_.at(static_cast<std::size_t>(index)); }
    Item& At(int index) { return *items_.at(static_cast<std::size_t>(index)); }

    /// Adds the text and returns its position. Throws std::length_error when the list is full.
    int Add(std::string text);
    /// Adds all texts with one sort. Throws std::length_error when the list is full; what fitted stays. Any
    /// other failure adds none.
    void Add(std::vector<std::string> texts);
    void Remove(int index);
    /// Moves the items at these ascending positions to another list of the same order, unselected. All or
    /// nothing. Throws std::length_error when that list would have too many.
    void MoveTo(SortedItems& target, const std::vector<int>& positions);
    void Clear() { items_.clear(); }

private:
    /// Held by pointers, so that adding or moving many items moves pointers only.
    using Items = std::vector<std::unique_ptr<Item>>;

    Items Reserved(std::size_t addedCount) const;
    void Merge(Items merged, Items& added);
    std::unique_ptr<Item> NewItem(std::string text) const;
    static bool StandsBefore(const std::unique_ptr<Item>& a, const std::unique_ptr<Item>& b);

    SortKey sortKey_;
    Items items_;
};

}  // namespace halvenmoor::forms
