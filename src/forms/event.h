#pragma once

namespace halvenmoor::forms {

/// Something to be done at once, by reference: unlike std::function it never allocates, so it cannot fail
/// before it is called. It must not outlive the callable.
class Event {
public:
    template <class Callable>
    Event(const Callable& callable)
        : callable_(&callable),
          call_([](const void* called) { (*static_cast<const Callable*>(called))(); }) {}

    void operator()() const { call_(callable_); }

private:
    const void* callable_;
    void (*call_)(const void*);
};

}  // namespace halvenmoor::forms
