#pragma once

#include "forms/desktop.h"
#include "forms/toolkit.h"
#include "platform/qt/services/translation.h"
#include "platform/services.h"

#include <QElapsedTimer>
#include <QPointer>
#include <functional>
#include <memory>
#include <string_view>

namespace halvenmoor::qt {

class FormWindow;

/// Shows forms as Qt windows. It needs a QApplication.
class QtToolkit : public forms::Toolkit {
public:
    /// The locale tells how texts that are not UTF-8 are shown; it outlives the toolkit.
    explicit QtToolkit(const platform::Locale& locale);

    std::unique_ptr<forms::View> CreateView(forms::Form& form) override;
    void RunModal(forms::Form& form, const std::function<void()>& first) override;
    void HandleEvents(double waitSeconds) override;
    bool YieldIsDue() const override;
    void Copy(const std::string& text) override;
    void Announce(const std::string& text) override;
    void SetLanguage(std::string_view name) override { translation_.SetLanguage(name); }
    void Wait(const std::function<void()>& work) override;

    /// The main loop; returns when the desktop has ended.
    void Run(forms::Desktop& desktop);

private:
    void Pump(double waitSeconds);

    const text::CodePage& page_;
    Translation translation_;
    QElapsedTimer sinceYield_;
    QPointer<FormWindow> mainWindow_;
};

}  // namespace halvenmoor::qt
