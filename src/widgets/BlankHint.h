#pragma once

class QLineEdit;
class QTextEdit;

/// Keeps the field's property "blank" at whether it is empty: its hint, which has the colour of its text,
/// must not look like an answer. GUI thread.
void MarkBlank(QLineEdit* field);
void MarkBlank(QTextEdit* field);
