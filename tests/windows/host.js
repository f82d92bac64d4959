// A studio in a script, run by cscript: its explorer and its services are script objects, and it drives the add-in through
// the day of a project. Arguments: the project's folder. Ends with 1 at the first thing that is wrong.
var folder = WScript.Arguments(0);

function fail(text) {
    WScript.Echo(text);
    WScript.Quit(1);
}
function expect(what, is, should) {
    if (is !== should) fail(what + ": " + is + " instead of " + should);
}

function Explorer(window) {
    this.HostWindow = window;
    this.SelectedOwner = "Plant";
    this.SelectedKey = "";
    this.SelectedCaption = "";
    this.nodes = {};     // captions by keys
    this.parents = {};
    this.keys = [];
    this.images = [];
    this.AddNode = function (parent, caption, key, tag, image, first, second, third, number) {
        if (this.nodes[key] !== undefined) throw new Error(0x8002000b | 0, "the key " + key + " exists");
        if (parent !== "" && this.nodes[parent] === undefined) throw new Error(0x8002000b | 0, "no parent " + parent);
        this.nodes[key] = caption;
        this.parents[key] = parent;
        this.keys.push(key);
    };
    this.RemoveNode = function (key) {
        for (var i = this.keys.length - 1; i >= 0; i--) {
            if (this.parents[this.keys[i]] === key) this.RemoveNode(this.keys[i]);
        }
        for (var at = 0; this.keys[at] !== key; at++) { }
        this.keys.splice(at, 1);
        delete this.nodes[key];
    };
    this.children = function (key) {
        var found = [];
        for (var i = 0; i < this.keys.length; i++) if (this.parents[this.keys[i]] === key) found.push(this.keys[i]);
        return found;
    };
    this.ChildCount = function (key, levels) { return this.children(key).length; };
    this.ChildKey = function (key, levels, number) { return this.children(key)[number]; };
    this.TakeClipboardImage = function (key) { this.images.push(key); };
    this.SetNodeProperty = function (key, number, value) { if (number === 1) this.nodes[key] = value; };
    this.Activate = function () { };
    this.Services = new Services();
}

function Services() {
    this.reads = [];
    this.written = {};
    var self = this;
    this.Registry = {
        ReadString: function (key, value, fallback) {
            self.reads.push(key + "@" + value);
            return key === "SOFTWARE\\Tarnwell\\Helvix\\4.0\\Projects\\Plant" && value === "Path" ? folder : fallback;
        },
        ReadNumber: function (key, value, fallback) { return fallback; },
        WriteString: function (key, value, data) { },
        WriteNumber: function (key, value, data) { }
    };
    this.IniFile = {
        Read: function (section, key, fallback, file) { return fallback; },
        Write: function (section, key, text, file) { self.written[section + "/" + key] = text; self.file = file; }
    };
    this.ItemSelection = { Choose: function (owner, current) { return "Tank.Level"; } };
    this.PathSelection = { Choose: function (owner, current) { return "D:\\Rezepte"; } };
    this.HXMultiItems = new MultiItems();
}

function list(names) {
    return { Count: names.length, Item: function (number) { return names[number]; } };
}
// Takes one variable more each time, and cancels when there are two.
function MultiItems() {
    this.ItemFilter = 0;
    this.SelectedItems = null;
    this.Choose = function (owner) {
        var names = [];
        for (var i = 0; this.SelectedItems && i < this.SelectedItems.Count; i++) names.push(this.SelectedItems.Item(i));
        asked.push("variables " + this.ItemFilter + " " + names.join());
        this.SelectedItems = list(names.concat(names.length === 0 ? "Tank.Level" : "Tank.Heat"));
        return names.length < 2;
    };
}

var asked = [];
var editor = null;
var answers = {
    Dialog: function (form) {
        asked.push("dialog " + form.Caption);
        editor = form.Owner;
        form.txtName.Text = "K\u00fchlen \u20ac";
        form.cmdChooseItem(0).Click();
        form.cmdChoosePath.Click();
        form.cmdOk.Click();
    },
    Message: function (text, title, style) {
        asked.push("message " + title + ": " + text);
        return 6;
    },
    PopUp: function (band) {
        asked.push("menu " + band);
        return "mnuRecipeEdit";
    }
};

function day() {
    var user = new ActiveXObject("HXTest.User");
    user.Ask(answers);
    var explorer = new Explorer(user.HostWindow());
    var connect = new ActiveXObject("HXRecipeEditor.Connect");

    connect.Initialize("Plant", "", explorer, null);
    expect("the path", connect.ProjectPath, folder + "\\Plant.hxs");
    expect("the name", connect.ProjectName, "Plant");
    expect("the root", explorer.keys.join(), "RCPE0");
    expect("the root's caption", explorer.nodes.RCPE0, "Rezepte");
    expect("pictures", explorer.images.length > 0 && explorer.images[0] === "icoRcpRecipe", true);
    expect("the host's window", connect.HostValue, explorer.HostWindow);
    expect("the explorer", connect.Explorer === explorer, true);
    expect("a free text", connect.Text1, "");
    connect.Text1 = "frei";
    expect("an assigned free text", connect.Text1, "frei");
    connect.StartupComplete();

    expect("no window yet", user.Embedded(), "");
    connect.NodeExpand("Plant", "RCPE0", "");
    expect("an embedded window", user.Embedded() !== "", true);
    connect.NodeClick("Plant", "RCPE0", "");
    connect.NodeKeyDown("Plant", "RCPE0", "", 119, 0);  // F8
    connect.NodeKeyDown("Plant", "RCPE0", "", 119, 0);
    expect("new recipes", explorer.keys.join(), "RCPE0,RCPR1,RCPU1,RCPR2,RCPU2");
    expect("their names", explorer.nodes.RCPR1 + "," + explorer.nodes.RCPR2, "Neues Rezept,Neues Rezept(2)");

    connect.NodeClick("Plant", "RCPR1", "Neues Rezept");
    connect.NodeMouseDown("Plant", "RCPR1", "", 2, 0, 10, 10);
    connect.NodeMouseUp("Plant", "RCPR1", "", 2, 0, 10, 10);
    expect("what the user was asked", asked.join().split(":")[0].substr(0, 21), "menu mnuRecipe,dialog");
    expect("the renamed node", explorer.nodes.RCPR1, "K\u00fchlen \u20ac");

    asked = [];
    for (var i = 0; i < 3; i++) editor.mnuRecipeMember(0);
    editor = null;
    expect("the choice of variables", asked.join(";"),
           "variables 256 ;variables 256 Tank.Level;variables 256 Tank.Level,Tank.Heat");

    connect.NodeClick("Plant", "RCPR2", "");
    connect.NodeKeyDown("Plant", "RCPR2", "", 46, 2);  // Ctrl+Delete
    expect("a question", asked[asked.length - 1].substr(0, 8), "message ");
    expect("after a deletion", explorer.keys.join(), "RCPE0,RCPR1,RCPU1");

    connect.NodeKeyDown("Plant", "RCPR1", "", 112, 0);  // F1
    expect("help", user.Help().split(" ")[0], "100019");
    explorer.SelectedKey = "RCPU1";
    connect.NodeKeyDown("Plant", "RCPR1", "", 117, 0);  // F6
    connect.NodeDblClick("Plant", "RCPU1", "");
    expect("a message", connect.GetMessage("Studio", "Anything", 5), undefined);
    connect.RefreshView();
    expect("after a refresh", explorer.keys.join(), "RCPE0,RCPR1,RCPU1");
    connect.Deactivate();
    connect.Terminate();
    expect("at the end", explorer.keys.join(), "");
    expect("the window at the end", user.Embedded(), "");
    expect("the studio's registry", explorer.Services.reads[0], "SOFTWARE\\Tarnwell\\Helvix\\4.0\\Projects\\Plant@Path");
    expect("boxes", user.Messages().split("\n").length, 2);
    connect = null;
    CollectGarbage();
}

try {
    day();
} catch (error) {
    fail("the error " + (error.number >>> 0).toString(16) + " " + error.description);
}
WScript.Echo("done");
