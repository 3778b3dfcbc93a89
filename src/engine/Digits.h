#pragma once
// Digits as people type them: Western 0–9, Arabic-Indic (U+0660–0669) and Extended Arabic-Indic
// (U+06F0–06F9, the Persian and Urdu forms) count alike. Other scripts' digits are not read.

namespace tarvanel {

// 0–9 for a digit of those three sets, −1 for any other character.
constexpr int digitValue(char32_t c) {
    if (c >= U'0' && c <= U'9') return int(c - U'0');
    if (c >= 0x0660 && c <= 0x0669) return int(c - 0x0660);
    if (c >= 0x06F0 && c <= 0x06F9) return int(c - 0x06F0);
    return -1;
}

} // namespace tarvanel
