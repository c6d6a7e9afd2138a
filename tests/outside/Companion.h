// The companion beside the host: what it is told to know and to say, and what it was asked.
#pragma once

#include <functional>
#include <initializer_list>

#import <Foundation/Foundation.h>

/// A class of the companion's that has no variables, up to its methods.
#define CLASS(name)            \
    @interface name : NSObject \
    @end                       \
    @implementation name

/// Its fields take anything, as a companion with a fault would fill them in.
@interface ZQNumberIdentity : NSObject {
    id _number, _identity, _source, _brandInfo;
    int _type, _numOfMark, _cloudDataType;
    float _rating;
}
@property(nonatomic, retain) id number, identity, source, brandInfo;
@property(nonatomic) int type, numOfMark, cloudDataType;
@property(nonatomic) float rating;
@end

@interface Stage : NSObject
/// Back to what the companion knows by itself; the add-on is told to forget what it has cached.
+ (void)reset;
/// Of nil, nothing.
+ (void)know:(ZQNumberIdentity *)identity of:(NSString *)number;
/// What else it knows of a number: its calls by their action types ("history"), the numbers of the
/// address book's person who has this one ("person"), the other number that its calls' records are
/// of ("stored").
+ (void)tell:(NSString *)what of:(NSString *)number as:(id)value;
+ (id)told:(NSString *)what of:(NSString *)number;
/// What an operation returns, nil included.
+ (void)let:(NSString *)operation answer:(id)value;
/// Every operation so far, in order.
+ (NSArray *)asked;
+ (NSUInteger)timesAsked:(NSString *)operation;
/// The address opened since the last question, or nil.
+ (id)opened;
+ (void)announce:(NSString *)message;
/// The same message, that all numbers changed.
+ (void)reload;
/// The message that the add-on posted last.
+ (NSString *)posted;
+ (NSUInteger)observersOf:(NSString *)message;
@end

@interface Stage (Cloud)
+ (BOOL)isCloudAsked;
+ (void)answerFromCloud:(NSDictionary *)answer;
/// The kind of the identity that the add-on stored last.
+ (int)storedKind;
@end

/// What is autoreleased meanwhile is gone afterwards.
void inPool(const std::function<void()> &work);

/// A text that nobody else keeps.
inline NSString *fresh(NSString *text) { return [[text mutableCopy] autorelease]; }

/// The running system; several are what is said in turn, again and again.
void runOn(std::initializer_list<double> versions);

/// Comes up once, at the next question of that name or after so many others, before the answer.
void troubleAt(NSString *operation, std::function<void()> trouble);
void troubleAfter(NSUInteger questions, std::function<void()> trouble);
/// The trouble of a companion that fails.
void fail();

/// What an operation returns: what it was told, or else the usual. The argument has to outlive the
/// question.
id answer(SEL operation, id usual, id argument = nil);

/// The same for an operation that gives no object.
template <typename Value>
Value plain(SEL operation, Value value) {
    answer(operation, nil);
    return value;
}
