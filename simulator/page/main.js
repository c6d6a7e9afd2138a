// Puts the page together. Each module draws its part from the store and asks the conversation.
import { keepAddress, startFromAddress } from "./address.js";
import { followBackKey } from "./backkey.js";
import { showCalls } from "./calls.js";
import { bindChoices } from "./choices.js";
import { showClock } from "./clock.js";
import { Conversation } from "./conversation.js";
import { takeFiles } from "./files.js";
import { showHappenings } from "./happenings.js";
import { showInspector } from "./inspector.js";
import { showNotices } from "./notices.js";
import { showScreens } from "./screens.js";
import { Pictures } from "./pictures.js";
import { showStepList } from "./steplist.js";
import { initialState, Store } from "./store.js";
import { showStory } from "./story.js";
import { bindTabs } from "./tabs.js";
import { bindTakeHome } from "./takehome.js";

const store = new Store(initialState());
const pictures = new Pictures();
await startFromAddress(store);

const conversation = new Conversation(store, pictures);
bindChoices(store, conversation);
bindTabs(store);
bindTakeHome(store, pictures);
showNotices(store, conversation);
showScreens(store, pictures, conversation);
showClock(store, conversation);
showCalls(store, conversation);
showInspector(store, pictures);
showHappenings(store);
showStory(store, conversation);
showStepList(store, conversation);
takeFiles(store, conversation);
keepAddress(store, conversation);
followBackKey(store, conversation);
conversation.connect();
