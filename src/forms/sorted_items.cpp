#include "forms/sorted_items.h"

#include <algorithm>
#include <iterator>
#include <stdexcept>

namespace halvenmoor::forms {

namespace {

[[noreturn]] void FailFull() {
    throw std::length_error("the list is full");
}

}  // namespace

int SortedItems::Add(std::string text) {
    if (Count() >= kMaxCount) FailFull();
    auto item = NewItem(std::move(text));
    const auto position = std::upper_bound(items_.begin(), items_.end(), item, StandsBefore);
    const auto added = items_.insert(position, std::move(item));  // may move all items, so begin comes after
    return static_cast<int>(added - items_.begin());
}

void SortedItems::Add(std::vector<std::string> texts) {
    const std::size_t fitting = std::min(static_cast<std::size_t>(kMaxCount - Count()), texts.size());
    Items added;
    added.reserve(fitting);
    for (std::size_t i = 0; i < fitting; ++i) added.push_back(NewItem(std::move(texts[i])));
    std::sort(added.begin(), added.end(), StandsBefore);
    Merge(Reserved(added.size()), added);
    if (fitting < texts.size()) FailFull();
}

/// Adds items that are in order. With memory reserved for all items nothing can fail.
void SortedItems::Merge(Items merged, Items& added) {
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
    Items merged = target.Reserved(positions.size());
    Items taken;
    taken.reserve(positions.size());
    // From here on nothing fails.
    auto next = positions.begin();
    std::size_t kept = 0;
    for (std::size_t i = 0; i < items_.size(); ++i) {
        if (next != positions.end() && static_cast<std::size_t>(*next) == i) {
            items_[i]->selected = false;
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

SortedItems::Items SortedItems::Reserved(std::size_t addedCount) const {
    Items merged;
    merged.reserve(items_.size() + addedCount);
    return merged;
}

std::unique_ptr<SortedItems::Item> SortedItems::NewItem(std::string text) const {
    std::string key = sortKey_(text);
    return std::make_unique<Item>(Item{std::move(text), std::move(key)});
}

bool SortedItems::StandsBefore(const std::unique_ptr<Item>& a, const std::unique_ptr<Item>& b) {
    const int order = a->key.compare(b->key);
    return order != 0 ? order < 0 : a->text < b->text;
}

}  // namespace halvenmoor::forms
