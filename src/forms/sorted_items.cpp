#include "forms/sorted_items.h"

#include <algorithm>
#include <iterator>
#include <stdexcept>

namespace halvenmoor::forms {

namespace {

bool StandsBefore(const SortedItems::Item& a, const SortedItems::Item& b) {
    const int order = a.key.compare(b.key);
    return order != 0 ? order < 0 : a.text < b.text;
}

[[noreturn]] void FailFull() {
    throw std::length_error("the list is full");
}

}  // namespace

int SortedItems::Add(std::string text) {
    if (Count() >= kMaxCount) FailFull();
    std::string key = sortKey_(text);
    Item item{std::move(text), std::move(key)};
    const auto position = std::upper_bound(items_.begin(), items_.end(), item, StandsBefore);
    const auto added = items_.insert(position, std::move(item));  // may move all items, so begin comes after
    return static_cast<int>(added - items_.begin());
}

void SortedItems::Add(std::vector<std::string> texts) {
    const std::size_t fitting = std::min(static_cast<std::size_t>(kMaxCount - Count()), texts.size());
    std::vector<Item> added;
    added.reserve(fitting);
    for (std::size_t i = 0; i < fitting; ++i) {
        std::string key = sortKey_(texts[i]);
        added.push_back({std::move(texts[i]), std::move(key)});
    }
    std::sort(added.begin(), added.end(), StandsBefore);
    Merge(Reserved(added.size()), added);
    if (fitting < texts.size()) FailFull();
}

/// Adds items that are in order. With memory reserved for all items nothing can fail.
void SortedItems::Merge(std::vector<Item> merged, std::vector<Item>& added) {
    std::merge(std::make_move_iterator(items_.begin()), std::make_move_iterator(items_.end()),
               std::make_move_iterator(added.begin()), std::make_move_iterator(added.end()),
               std::back_inserter(merged), StandsBefore);
    items_.swap(merged);
}

void SortedItems::Remove(int index) {
    static_cast<void>(At(index));
    items_.erase(items_.begin() + index);
}

void SortedItems::MoveTo(SortedItems& target, const std::vector<int>& positions) {
    if (static_cast<std::size_t>(kMaxCount - target.Count()) < positions.size()) FailFull();
    std::vector<Item> merged = target.Reserved(positions.size());
    std::vector<Item> taken;
    taken.reserve(positions.size());
    // From here on nothing fails.
    auto next = positions.begin();
    std::size_t kept = 0;
    for (std::size_t i = 0; i < items_.size(); ++i) {
        if (next != positions.end() && static_cast<std::size_t>(*next) == i) {
            items_[i].selected = false;
            taken.push_back(std::move(items_[i]));
            ++next;
        } else {
            if (kept != i) items_[kept] = std::move(items_[i]);
            ++kept;
        }
    }
    items_.erase(items_.begin() + static_cast<std::ptrdiff_t>(kept), items_.end());
    target.Merge(std::move(merged), taken);
}

std::vector<SortedItems::Item> SortedItems::Reserved(std::size_t addedCount) const {
    std::vector<Item> merged;
    merged.reserve(items_.size() + addedCount);
    return merged;
}

}  // namespace halvenmoor::forms
