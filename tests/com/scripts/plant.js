// A host in a script: its objects are called by ours, and ours by it. Ends with 1 at the first thing that is wrong.
function expect(what, is, should) {
    if (is !== should) {
        WScript.Echo(what + ": " + is + " instead of " + should);
        WScript.Quit(1);
    }
}

function failure(action) {
    try {
        action();
    } catch (error) {
        return (error.number >>> 0).toString(16) + " " + error.description;
    }
    return "none";
}

function Host() {
    this.Name = "Studio";
    this.calls = 0;
    this.Double = function (value) { this.calls++; return value + value; };
    this.Fail = function () { throw new Error(0x80040e21 | 0, "gibt es schon"); };
    this.Self = function (value) { return this; };
}

var plant = new ActiveXObject("HXTest.Plant");
expect("a property", plant.Name, "Nord");
plant.Name = "S\u00fcd \u20ac";
expect("an assigned property", plant.Name, "S\u00fcd \u20ac");
expect("a method", plant.Join("a", 2, true), "a,2,True");
expect("names ignore case", plant.cOuNt, 7);
plant.Item(1) = "one";
expect("an item", plant.Item(1), "one");
expect("an empty value", plant.Item(0), undefined);
expect("an error", failure(function () { plant.Fail(-2147217873); }), "80040e2f Refused");
expect("an exception", failure(function () { plant.FailStrangely(); }), "80004005 strange");
expect("an unknown member", failure(function () { plant.Nothing(); }).substr(0, 8), "800a01b6");
expect("too few arguments", failure(function () { plant.Join("a"); }).substr(0, 8), "8002000e");

var host = new Host();
expect("a call back", plant.Call(host, "Double", 21), 42);
expect("a call back with a text", plant.Call(host, "Double", "ab"), "abab");
expect("how often", host.calls, 2);
expect("an object that comes back", plant.Call(host, "Self", 1).calls, 2);
plant.Assign(host, "Name", "Werk");
expect("an assignment back", host.Name, "Werk");
// The description too, but Wine's scripts do not hand it over.
expect("an error of the host", plant.FailureOf(host, "Fail").split(":")[0], "-2147217887");
plant.Value = host;
expect("an object that is kept", plant.Value.Name, "Werk");
plant.Value = null;
WScript.Echo("done");
