// What may follow the use of a field in a list. WITH names the file of a volume, pan or channel;
// WHEN and its kin tell while which field is on, or has which number, the field has an effect;
// FROM is the number of a run's first element, 1 without it; SLICE names the form that edits a
// field of the settings. They stand in this order.
#define WITH(field) , .file = #field
#define WHEN(field) , .when = {isOn(#field)}
#define WHEN_EITHER(field, other) , .when = {isOn(#field), isOn(#other)}
#define WHEN_IS(field, number) , .when = {isEqual(#field, number)}
#define WHEN_NOT(field, number) , .when = {isOther(#field, number)}
#define WHEN_WITHIN(field, low, high) , .when = {isWithin(#field, low, high)}
#define FROM(number) , .first = number
#define SLICE(form) , .slice = SettingsSlice::form
