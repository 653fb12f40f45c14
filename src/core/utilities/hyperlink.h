#pragma once

// A text box that looks and works like a hyperlink. All state lies in the box. Failures go to the caller.

#include <optional>

#include "core/utilities/shell.h"

namespace zentlor {

/// Colours in the order blue, green, red.
inline constexpr int kLinkNormal = 0xFF0000;
inline constexpr int kLinkHover = 255;

/// The pointer over a link, and the pointer mode that uses it.
inline constexpr int kLinkCursor = 1000;
inline constexpr int kCustomPointer = 99;

/// The text box of a link. Width, Height and mouse positions are in one unit.
class LinkBox {
  public:
    virtual ~LinkBox() = default;
    virtual void SetText(TextView text) = 0;
    virtual void SetLocked(bool locked) = 0;
    virtual Text Tag() const = 0;
    virtual void SetTag(TextView target) = 0;
    virtual void SetTabStop(bool tabStop) = 0;
    virtual void SetBorder(bool border) = 0;
    virtual void SetBackColor(int colour) = 0;
    virtual void SetForeColor(int colour) = 0;
    virtual void SetUnderline(bool underline) = 0;
    /// False if there is no such cursor.
    virtual bool SetMouseIcon(int cursor) = 0;
    virtual void SetMousePointer(int mode) = 0;
    virtual void SetEnabled(bool enabled) = 0;
    virtual float Width() const = 0;
    virtual float Height() const = 0;
    /// All mouse moves go to the box, also those outside of it; may be called again while they do.
    virtual void SetCapture() = 0;
    virtual void ReleaseCapture() = 0;
};

/// `backColor`: the colour of the form that the link stands on.
void HyperlinkEinrichten(LinkBox& txt, TextView strText, TextView strZiel, std::optional<int> backColor = {});
/// The link's normal look, and its pointer if there is one.
void HyperlinkFormatieren(LinkBox& txt, std::optional<int> lngFarbe = {});
/// The hover effect, at every mouse move that reaches the box. The edges count as inside.
void HyperlinkMouseMove(LinkBox& txt, float x, float y, std::optional<int> lngFarbeNormal = {},
                        std::optional<int> lngFarbeAktiv = {});
/// Opens the target by its beginning: "www.", "http://" and "https://" as an address, "mailto:" as a mail, "App:" as a
/// file. Any other target opens nothing; capitals count.
void HyperlinkClick(LinkBox& txt, Shell& shell, std::optional<int> lngFarbeNormal = {});
/// Opens a file with its application; if there is none, the platform's choice of applications.
void DateiOeffnen(Shell& shell, TextView strDatei);

}  // namespace zentlor
