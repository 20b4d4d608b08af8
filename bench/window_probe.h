// What the game's window and the plain one are asked alike, by the first argument of their
// programs.
#pragma once

#include <functional>
#include <string>
#include <vector>

class QWidget;

// Shows the window as it comes up, and what main() is to return. The modes:
//
//   first-frame   prints a line and ends as soon as the window has been painted once
//   stay          stays up
//   play          calls `begin`, which puts a game on view, and stays up
//   redraw        calls `begin`, prints how long one redraw of the whole window takes, in
//                 microseconds, and ends
int Probe(QWidget& window, const std::string& mode, const std::function<void()>& begin);

// Calls back when the widget has been painted for the first time and the picture is on its way.
void AfterFirstFrame(QWidget& widget, const std::function<void()>& then);

double Median(std::vector<double> numbers);
