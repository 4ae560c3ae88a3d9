// Light and dark.
#pragma once

#include <QPalette>
#include <QString>

namespace echohost {

class Appearance {
 public:
    // Saves the current style and colours, for setDark(false) and the destructor.
    Appearance();
    ~Appearance() { setDark(false); }
    Appearance(const Appearance&) = delete;
    Appearance& operator=(const Appearance&) = delete;

    void setDark(bool dark);

 private:
    bool isDark_ = false;
    QString style_;
    QPalette palette_;
};

}  // namespace echohost
