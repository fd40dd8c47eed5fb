#pragma once

#include "forms/control.h"

#include <cstddef>
#include <deque>
#include <functional>
#include <string>
#include <utility>

namespace halvenmoor::forms {

/// Controls of one kind with an index, as TypeList(1) to TypeList(5).
template <class ControlClass, int First, int Last>
class ControlArray {
public:
    /// Takes the design of each control by its index; the index becomes a part of its name.
    explicit ControlArray(const std::function<Design(int)>& designOf) {
        for (int i = First; i <= Last; ++i) {
            Design design = designOf(i);
            design.name += "(" + std::to_string(i) + ")";
            controls_.emplace_back(std::move(design));
        }
    }

    ControlClass& operator[](int index) { return controls_.at(static_cast<std::size_t>(index - First)); }
    const ControlClass& operator[](int index) const {
        return controls_.at(static_cast<std::size_t>(index - First));
    }
    auto begin() { return controls_.begin(); }
    auto end() { return controls_.end(); }

private:
    std::deque<ControlClass> controls_;
};

}  // namespace halvenmoor::forms
