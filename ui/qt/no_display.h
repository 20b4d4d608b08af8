// Says in one sentence why no window can be opened, and ends the program, where the toolkit would
// tell all that it has tried and abort.
#pragma once

// Before the application is made, and after.
void ListenForNoDisplay();
void StopListening();
