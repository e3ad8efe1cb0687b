#include "platform/notification_centre.h"

#include "moc_notification_centre.cpp"
