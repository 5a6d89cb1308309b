// Makes every message box, chooser and menu of this process answer as planned in message_boxes.h.
#pragma once

// Called once, with the application object in place.
void AnswerBoxes();
