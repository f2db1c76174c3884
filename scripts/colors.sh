# The system colors of a light and of a dark desktop, as options of a program: no theme for GNUstep is packaged. For the
# scripts that source it.
# shellcheck disable=SC2034

dark_colors=(-windowBackgroundColor "0.16 0.16 0.18" -controlBackgroundColor "0.16 0.16 0.18" -controlColor "0.27 0.27 0.29"
    -controlTextColor "0.92 0.92 0.92" -textColor "0.92 0.92 0.92" -textBackgroundColor "0.10 0.10 0.11"
    -controlHighlightColor "0.33 0.33 0.35" -controlLightHighlightColor "0.45 0.45 0.47" -controlShadowColor "0.45 0.45 0.47"
    -controlDarkShadowColor "0.08 0.08 0.08" -disabledControlTextColor "0.62 0.62 0.62" -windowFrameTextColor "0.92 0.92 0.92"
    -keyboardFocusIndicatorColor "0.40 0.65 1.0" -alternateSelectedControlColor "0.10 0.35 0.75"
    -alternateSelectedControlTextColor "1.0 1.0 1.0" -secondarySelectedControlColor "0.30 0.30 0.33"
    -selectedControlColor "0.27 0.27 0.29" -selectedControlTextColor "0.92 0.92 0.92" -headerColor "0.22 0.22 0.24"
    -headerTextColor "0.92 0.92 0.92" -scrollBarColor "0.22 0.22 0.24" -knobColor "0.33 0.33 0.35")
light_colors=(-windowBackgroundColor "0.94 0.94 0.95" -controlBackgroundColor "0.94 0.94 0.95" -controlColor "0.98 0.98 0.98"
    -controlTextColor "0.10 0.10 0.10" -textColor "0.10 0.10 0.10" -textBackgroundColor "1.0 1.0 1.0"
    -controlHighlightColor "0.90 0.90 0.91" -controlLightHighlightColor "0.72 0.72 0.74" -controlShadowColor "0.55 0.55 0.58"
    -controlDarkShadowColor "0.60 0.60 0.63" -disabledControlTextColor "0.42 0.42 0.44" -windowFrameTextColor "0.10 0.10 0.10"
    -keyboardFocusIndicatorColor "0.10 0.42 0.85" -alternateSelectedControlColor "0.12 0.40 0.82"
    -alternateSelectedControlTextColor "1.0 1.0 1.0" -secondarySelectedControlColor "0.84 0.84 0.86"
    -selectedControlColor "1.0 1.0 1.0" -selectedControlTextColor "0.10 0.10 0.10" -headerColor "0.97 0.97 0.97"
    -headerTextColor "0.25 0.25 0.27" -scrollBarColor "0.92 0.92 0.93" -knobColor "0.78 0.78 0.80")
