// Makes every message box and chooser of this process answer as planned in message_boxes.h.
#pragma once

// Called once, with the application object in place.
void AnswerBoxes();
