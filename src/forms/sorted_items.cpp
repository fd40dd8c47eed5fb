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
    const auto place = std::upper_bound(items_.begin(), items_.end(), item, StandsBefore);
    const auto added = items_.insert(place, std::move(item));  // may move all items, so begin comes after
    return static_cast<int>(added - items_.begin());
}

void SortedItems::Add(std::vector<std::string> texts) {
    const auto room = static_cast<std::size_t>(kMaxCount - Count());
    const std::size_t fitting = std::min(room, texts.size());
    const auto oldCount = static_cast<std::ptrdiff_t>(items_.size());
    items_.reserve(items_.size() + fitting);
    for (std::size_t i = 0; i < fitting; ++i) {
        std::string key = sortKey_(texts[i]);
        items_.push_back({std::move(texts[i]), std::move(key)});
    }
    // Items that come from another list are in order already.
    const auto added = items_.begin() + oldCount;
    if (!std::is_sorted(added, items_.end(), StandsBefore)) std::sort(added, items_.end(), StandsBefore);
    std::inplace_merge(items_.begin(), added, items_.end(), StandsBefore);
    if (fitting < texts.size()) FailFull();
}

void SortedItems::Remove(int index) {
    static_cast<void>(At(index));
    items_.erase(items_.begin() + index);
}

std::vector<SortedItems::Item> SortedItems::Take(const std::vector<int>& positions) {
    std::vector<Item> taken;
    taken.reserve(positions.size());
    auto next = positions.begin();
    std::size_t kept = 0;
    for (std::size_t i = 0; i < items_.size(); ++i) {
        if (next != positions.end() && static_cast<std::size_t>(*next) == i) {
            taken.push_back(std::move(items_[i]));
            ++next;
        } else {
            if (kept != i) items_[kept] = std::move(items_[i]);
            ++kept;
        }
    }
    items_.resize(kept);
    return taken;
}

}  // namespace halvenmoor::forms
