#pragma once

#include "ui_WPSViews.h"

// Sets the texts and the picture of the two views that explain how to connect by WPS.
void setWPSTexts(const Ui::WPSViews &views);
