#pragma once

#include "Alert.h"

#include <functional>

class QWidget;

/// Shows `alert` as a sheet on `window`, and returns at once. Main thread.
/// @param answered called once with the button's answer, unless the window goes away before.
void showAlert(QWidget *window, const Alert &alert, std::function<void(int response)> answered = {});
