#pragma once

#include "ui_WPSViews.h"

// Sets the texts of the two views that explain how to connect by WPS.
void setWPSTexts(const Ui::WPSViews &views);

// Sets the picture of the second view; apart, since drawing it would delay the first window.
void setWPSPicture(const Ui::WPSViews &views);
