#pragma once

/// What kind of news a notice brings; it decides the sign and the colour beside the words.
enum class NoticeKind { Info, Success, Warning, Error };
